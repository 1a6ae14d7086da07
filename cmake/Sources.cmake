# Splits the files under src/ into the core and the UI library by name.
# A view is a Qt file: its name ends in "Window" or "Widget", or starts with "Qt"
# (Form1Window.cpp, LineNumberWidget.cpp, QtDialogs.cpp). Everything else is core.
# src/app holds main() and belongs to neither.
set(TESSARINE_VIEW_REGEX "(Window|Widget)\\.cpp$|/Qt[A-Z][A-Za-z0-9]*\\.cpp$")

function(tessarine_sources core_var ui_var)
  file(GLOB_RECURSE all CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/*.cpp")
  list(FILTER all EXCLUDE REGEX "/src/app/")
  set(ui ${all})
  list(FILTER ui INCLUDE REGEX "${TESSARINE_VIEW_REGEX}")
  set(core ${all})
  list(FILTER core EXCLUDE REGEX "${TESSARINE_VIEW_REGEX}")
  set(${core_var} ${core} PARENT_SCOPE)
  set(${ui_var} ${ui} PARENT_SCOPE)
endfunction()
