# A display without a monitor, for the scripts beside it: sourced after comune.sh, never run.

pacchetti_schermo=(xvfb openbox x11-xserver-utils x11-utils xdotool imagemagick)

figli=()
# Ends what was started here, the last one first.
chiudi_figli() {
  local i
  for ((i = ${#figli[@]} - 1; i >= 0; i--)); do
    kill "${figli[i]}" 2>/dev/null && wait "${figli[i]}" 2>/dev/null || true
  done
  figli=()
}

# attendi_che SECONDS "what is waited for" command...: tries the command until it succeeds.
attendi_che() {
  local fine=$((SECONDS + $1)) cosa=$2
  shift 2
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $fine ] || errore "waited in vain for $cosa"
    sleep 0.1
  done
}

# apri_schermo WIDTH HEIGHT: two monitors of that size side by side, with a window manager; sets DISPLAY.
apri_schermo() {
  local larga=$1 alta=$2 numero d
  exec {numero}< <(
    trap '' INT # the display ends last, also at Ctrl+C
    exec Xvfb -displayfd 1 -screen 0 "$((larga * 2))x${alta}x24" -noreset -nolisten tcp 2>/dev/null
  )
  figli+=($!)
  read -r -t 20 d <&"$numero" || errore "Xvfb didn't start"
  exec {numero}<&-
  export DISPLAY=:$d
  unset WAYLAND_DISPLAY
  # 96 points an inch, as most monitors are told.
  local misure=$larga/$((larga * 254 / 960))x$alta/$((alta * 254 / 960))
  xrandr --setmonitor '*PRIMO' "$misure+0+0" screen >/dev/null
  xrandr --setmonitor SECONDO "$misure+$larga+0" none
  openbox >/dev/null 2>&1 &
  figli+=($!)
  attendi_che 20 "the window manager" finestra_gestore
}

finestra_gestore() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# finestra PID TITLE: the id of the visible window of a process that bears this title.
finestra() { xdotool search --all --onlyvisible --pid "$1" --name "^$2\$" | tail -n 1; }

# The console's measures by design, in which the grids lie (see layout_frmGestione.cpp).
readonly disegno_larga=18960 disegno_alta=10665
readonly griglia_alto=1020 griglia_larga=5835 riga_alta=800
readonly griglie_sinistra=(30 6015 12015)

# misura_menu WIDTH HEIGHT: sets alta_menu, the height of the menu bar in a console of that size: 49 pixels on the
# smallest screen, and in proportion on a larger one.
misura_menu() {
  alta_menu=$((49 * $1 / 1024))
  [ $alta_menu -le $((49 * $2 / 768)) ] || alta_menu=$((49 * $2 / 768))
  [ $alta_menu -ge 49 ] || alta_menu=49
}

# clicca_ordine CONSOLE QUADRANT ROW COLUMN: touches a cell of a grid of three columns.
clicca_ordine() {
  local X Y WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(X|Y|WIDTH|HEIGHT)=[0-9-]+$')"
  misura_menu "$WIDTH" "$HEIGHT"
  local dentro=$((HEIGHT - alta_menu))
  local riga=$((riga_alta * dentro / disegno_alta))
  [ $riga -ge 48 ] || riga=48 # a finger's breadth: no row is lower
  local x=$((X + (griglie_sinistra[$2] + griglia_larga * (2 * $4 + 1) / 6) * WIDTH / disegno_larga))
  local y=$((Y + alta_menu + griglia_alto * dentro / disegno_alta + riga * $3 + riga / 2))
  xdotool mousemove "$x" "$y" click 1
}

# scansiona CODE: types as a scanner does.
scansiona() { xdotool type --delay 5 "$1" && xdotool key Return; }

# fotografa FILE [CROP]: the whole display, or a part of it, in few colours.
fotografa() {
  import -window root ${2:+-crop "$2" +repage} -dither None -colors 200 -strip "png8:$1"
}
