# Splits the files under src/ into the core and the UI library by folder. src/qt holds
# every file that uses Qt (views, widgets, the shell that runs them) and is the UI
# library; every other folder below it is the core, which uses the C++ standard library
# only. src/app holds main() and belongs to neither.
function(tessarine_sources core_var ui_var)
  file(GLOB_RECURSE all CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/*.cpp")
  list(FILTER all EXCLUDE REGEX "/src/app/")
  set(ui ${all})
  list(FILTER ui INCLUDE REGEX "/src/qt/")
  set(core ${all})
  list(FILTER core EXCLUDE REGEX "/src/qt/")
  set(${core_var} ${core} PARENT_SCOPE)
  set(${ui_var} ${ui} PARENT_SCOPE)
endfunction()
