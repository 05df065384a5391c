# The headers of others that most sources read, compiled once for all targets that are compiled with the same flags.
# A source still includes whatever it uses: it compiles without them too (CMAKE_DISABLE_PRECOMPILE_HEADERS).

# Where g++ optimises it warns about the standard library's insides when they come precompiled; and so one kind of build
# shows a source that lacks an include.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

# lum_precompilati(kind headers... [LIBRERIE libs...]): the precompiled headers of a kind of targets.
function(lum_precompilati genere)
  cmake_parse_arguments(P "" "" "LIBRERIE" ${ARGN})
  set(vuoto ${CMAKE_CURRENT_BINARY_DIR}/precompilati_${genere}.cpp)
  file(CONFIGURE OUTPUT ${vuoto} CONTENT "")
  add_library(lum_precompilati_${genere} OBJECT ${vuoto})
  target_link_libraries(lum_precompilati_${genere} PRIVATE ${P_LIBRERIE})
  target_precompile_headers(lum_precompilati_${genere} PRIVATE ${P_UNPARSED_ARGUMENTS})
endfunction()

# lum_precompila(target kind): the target is compiled with the precompiled headers of the kind.
function(lum_precompila nome genere)
  target_precompile_headers(${nome} REUSE_FROM lum_precompilati_${genere})
endfunction()

set(lum_intestazioni_logica
  <algorithm> <array> <charconv> <chrono> <cmath> <cstdint> <deque> <filesystem> <fstream> <functional> <map> <memory>
  <optional> <set> <span> <sstream> <string> <string_view> <utility> <variant> <vector>
)
set(lum_intestazioni_finestre
  <QApplication> <QComboBox> <QFontMetricsF> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QMouseEvent>
  <QPainter> <QPainterPath> <QPixmap> <QPointer> <QScreen> <QScrollBar> <QSignalBlocker> <QString> <QTimer>
  <QWheelEvent> <QWidget> <QWindow>
)
set(lum_intestazioni_prova <gmock/gmock.h> <gtest/gtest.h>)

lum_precompilati(logica ${lum_intestazioni_logica})
if(LUMIGRAFO_FINESTRE)
  lum_precompilati(finestre ${lum_intestazioni_logica} ${lum_intestazioni_finestre} LIBRERIE Qt6::Widgets)
endif()
