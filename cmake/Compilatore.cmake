# How every target is compiled: C++20, strict warnings, ccache where there is one.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# With precompiled headers ccache works as soon as it may overlook what they hide from it (the macros that were defined
# before them, the time of the day) and how new they are.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  else()
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

if(MSVC)
  message(FATAL_ERROR "Build with g++, clang++ or MinGW-w64")
endif()
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
# GCC 12 takes an optimized join of texts for a copy over itself.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

# Many small programs are linked: the quicker linker, where there is one.
find_program(GOLD ld.gold)
if(GOLD AND NOT WIN32)
  add_link_options(-fuse-ld=gold)
endif()

if(LUMIGRAFO_SANITIZER)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# lum_logica(name sources...): a library of the logic. It never sees Qt, so a stray Qt include fails to compile.
function(lum_logica nome)
  add_library(${nome} STATIC ${ARGN})
  target_include_directories(${nome} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  lum_precompila(${nome} logica)
endfunction()

# lum_finestre(name sources...): a library of windows, on Qt Widgets.
function(lum_finestre nome)
  add_library(${nome} STATIC ${ARGN})
  target_include_directories(${nome} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${nome} PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets)
  lum_precompila(${nome} finestre)
endfunction()
