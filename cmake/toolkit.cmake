# wxWidgets behind one interface target. The package configuration of 3.3 is asked first, then that
# of 3.2 (a request for 3.2 refuses 3.3), then the find module, which is what Debian's 3.2 needs.
# The package configurations name OpenGL's targets, but leave it to us to find them.
find_package(OpenGL REQUIRED)
find_package(wxWidgets 3.3 CONFIG QUIET COMPONENTS core base gl)
if(NOT wxWidgets_FOUND)
  find_package(wxWidgets 3.2 CONFIG QUIET COMPONENTS core base gl)
endif()
if(NOT wxWidgets_FOUND)
  find_package(wxWidgets 3.2 MODULE REQUIRED COMPONENTS core base gl)
endif()

add_library(trassix_toolkit INTERFACE)
if(TARGET wx::core)
  target_link_libraries(trassix_toolkit INTERFACE wx::core wx::base wx::gl)
else()
  target_include_directories(trassix_toolkit SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(trassix_toolkit INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(trassix_toolkit INTERFACE ${wxWidgets_CXX_FLAGS})
  target_link_directories(trassix_toolkit INTERFACE ${wxWidgets_LIBRARY_DIRS})
  target_link_libraries(trassix_toolkit INTERFACE ${wxWidgets_LIBRARIES})
endif()
