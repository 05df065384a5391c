# The demonstration's folder and program, for the scripts beside it: sourced after schermo.sh, never run.

casa=$radice/demo
programma=$radice/build/demo/bin/lumigrafo
archivio=$radice/build/demo/bin/lumigrafo-archivio
formato_archivio=sqlite

# Builds, and makes the folder anew but for its settings. Receipts to scan go to `scontrini`.
prepara_dimostrazione() {
  installa "${pacchetti_costruzione[@]}" "${pacchetti_uso[@]}"
  costruisci demo lumigrafo lumigrafo-archivio
  mkdir -p "$casa"
  exec {blocco}>"$casa/.demo.blocco"
  flock -n "$blocco" || errore "the demonstration is running already"
  dico "Making an evening's orders in $casa"
  rm -rf "$casa"/archivio "$casa"/{VideataLumigrafo,UltimiChiamati}.ini "$casa"/*.png
  [ -e "$casa/Lumigrafo.ini" ] || scrivi_impostazioni >"$casa/Lumigrafo.ini"
  "$archivio" crea "$casa/archivio" --formato "$formato_archivio" --dimostrativo 60
  scontrini=()
  local categoria
  for categoria in 2 3 1; do
    scontrini+=("$("$archivio" ordine "$casa/archivio" --sigla A --numero $((100 + categoria)) \
      --categoria "$categoria=2")")
  done
}

# Kitchen, grill and bar, each with its colour (red in the low byte), and the board on the second monitor.
scrivi_impostazioni() {
  local rosso=$((0xB1 | 0x32 << 8 | 0x1E << 16)) verde=$((0x1F | 0x6B << 8 | 0x4A << 16))
  local blu=$((0x1D | 0x4E << 8 | 0x89 << 16))
  cat <<FINE
[Impostazioni]
DatabaseLumigrafo=$casa/archivio
TitoloLumigrafo=STIAMO SERVENDO I NUMERI
Categoria0=2
Categoria1=3
Categoria2=1
ColoreSfondo0=$rosso
ColoreSfondo1=$verde
ColoreSfondo2=$blu
NumeroLampeggi=3
[FormLumigrafo]
Top=0
Left=28800
Width=28800
Height=16200
FINE
}

# Starts the program and waits until console and board are there; sets `console`, the console's window.
avvia_programma() {
  dico "Starting the program"
  LUMIGRAFO_HOME=$casa "$programma" "$@" {blocco}>&- &
  pid=$!
  figli+=("$pid")
  attendi_che 30 "the board" ha_tabellone # it comes last, when the start window is gone
  console=$(finestra "$pid" Lumigrafo)
}

# The board has no title that could be read; it lies on the second monitor.
ha_tabellone() {
  local w X=0
  for w in $(xdotool search --all --onlyvisible --pid "$pid" --name '^[^a-zA-Z]*$'); do
    eval "$(xdotool getwindowgeometry --shell "$w" | grep '^X=')"
    [ "$X" -lt 1920 ] || return 0
  done
  return 1
}

# sul_tabellone QUADRANT NUMBER: whether the number stands in the newest slot.
sul_tabellone() { sed -n "/^\[$1\]/,/^\[/p" "$casa/VideataLumigrafo.ini" | tr -d '\r' | grep -qx "Numero3=$2"; }

ferma_programma() {
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}
