# Writes the header that names the version of a build and the commit it is built from:
#   cmake -DSOURCE_DIR=<project> -DVERSION=<x.y.z> -DOUTPUT=<header> -P cmake/BuildVersion.cmake
# The build runs it every time; the header is rewritten only when what it says changes, so a
# new commit compiles again only what includes it. The commit is git's abbreviated name of
# HEAD, with "-dirty" when tracked files differ from it, and "unknown" when the project is
# not a git checkout of its own (a source archive, also one unpacked inside another checkout).
set(commit "unknown")
find_package(Git QUIET)
if(GIT_FOUND)
  execute_process(COMMAND "${GIT_EXECUTABLE}" -C "${SOURCE_DIR}" rev-parse --show-toplevel
                  OUTPUT_VARIABLE top RESULT_VARIABLE failed OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT failed)
    file(REAL_PATH "${top}" top)
    file(REAL_PATH "${SOURCE_DIR}" source)
  endif()
  if(NOT failed AND top STREQUAL source)
    execute_process(COMMAND "${GIT_EXECUTABLE}" -C "${SOURCE_DIR}" rev-parse --short=12 HEAD
                    OUTPUT_VARIABLE head RESULT_VARIABLE failed OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(NOT failed AND head)
      set(commit "${head}")
      execute_process(COMMAND "${GIT_EXECUTABLE}" -C "${SOURCE_DIR}" diff --quiet HEAD --
                      RESULT_VARIABLE changed OUTPUT_QUIET ERROR_QUIET)
      if(changed)
        string(APPEND commit "-dirty")
      endif()
    endif()
  endif()
endif()
file(CONFIGURE OUTPUT "${OUTPUT}" @ONLY CONTENT [[
// Made at build time by cmake/BuildVersion.cmake: not a source file.
#pragma once

namespace tessarine {

inline constexpr const char* kBuildVersion = "@VERSION@";
inline constexpr const char* kBuildCommit = "@commit@";

}  // namespace tessarine
]])
