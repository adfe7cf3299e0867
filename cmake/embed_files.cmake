# Compiles files into a target, so that the program finds them wherever it stands:
#   embed_files(TARGET NAME FILE...)
# declares trassix::NAME() in "embedded/NAME.h", which gives their bytes in the order of the files.
function(embed_files target name)
  set(source "${CMAKE_CURRENT_BINARY_DIR}/embedded/${name}.cpp")
  set(header "${CMAKE_CURRENT_BINARY_DIR}/embedded/${name}.h")
  set(arrays "")
  set(table "")
  set(number 0)
  foreach(file IN LISTS ARGN)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    file(READ "${file}" bytes HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
    string(APPEND arrays "constexpr unsigned char kFile${number}[] = {${bytes}};\n")
    string(APPEND table "    std::span<const unsigned char>(kFile${number}),\n")
    math(EXPR number "${number} + 1")
  endforeach()
  file(CONFIGURE OUTPUT "${header}" @ONLY CONTENT [[
#pragma once

#include <span>

namespace trassix {

std::span<const std::span<const unsigned char>> @name@();

} // namespace trassix
]])
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT [[
#include "embedded/@name@.h"

namespace trassix {

namespace {

@arrays@
constexpr std::span<const unsigned char> kFiles[] = {
@table@};

} // namespace

std::span<const std::span<const unsigned char>> @name@() {
  return kFiles;
}

} // namespace trassix
]])
  target_sources(${target} PRIVATE "${source}")
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
endfunction()
