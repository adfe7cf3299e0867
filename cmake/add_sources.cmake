# All sources of these folders and those below them. The folders say what belongs to a target: a list
# of files beside them, in which a test can be forgotten without anybody noticing, would say it twice.
function(add_sources target)
  foreach(folder IN LISTS ARGN)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    target_sources(${target} PRIVATE ${sources})
  endforeach()
endfunction()
