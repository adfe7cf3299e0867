include(GNUInstallDirs)
find_program(GZIP gzip REQUIRED)

# Installs a text compressed, as pages and change logs are expected to be, and without the time of
# the build in it.
function(install_compressed file destination name)
  set(packed "${CMAKE_CURRENT_BINARY_DIR}/${name}.gz")
  add_custom_command(OUTPUT "${packed}"
    COMMAND "${GZIP}" -9nc "${file}" > "${packed}" DEPENDS "${file}" VERBATIM)
  add_custom_target("compressed_${name}" ALL DEPENDS "${packed}")
  install(FILES "${packed}" DESTINATION "${destination}")
endfunction()

set(linux "${PROJECT_SOURCE_DIR}/packaging/linux")
set(icons "${PROJECT_SOURCE_DIR}/packaging/icons")
set(debian "${PROJECT_SOURCE_DIR}/packaging/debian")

install(TARGETS trassix RUNTIME)
install(FILES "${linux}/trassix.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${linux}/org.trassix.Trassix.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${linux}/trassix-mime.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages"
  RENAME trassix.xml)
foreach(size 16 22 24 32 48 64 128 256)
  set(folder "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}")
  install(FILES "${icons}/${size}/trassix.png" DESTINATION "${folder}/apps")
  install(FILES "${icons}/${size}/trassix-document.png" DESTINATION "${folder}/mimetypes")
endforeach()
install(FILES "${icons}/trassix.svg"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(FILES "${icons}/trassix-document.svg"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes")
install_compressed("${linux}/trassix.1" "${CMAKE_INSTALL_MANDIR}/man1" trassix.1)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/" DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples")
install(FILES "${debian}/copyright" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
configure_file("${debian}/changelog.in" changelog @ONLY)
install_compressed("${CMAKE_CURRENT_BINARY_DIR}/changelog" "${CMAKE_INSTALL_DOCDIR}" changelog)

set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
  GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION
"Pick a track system, drag pieces named by their article number onto the plan,
and watch their ends snap together. What fits is joined, what closes is
closed, and what does not fit says which adapter to use.

Knows the pieces of Märklin C, K, M, Z and Gauge 1 track and of TRIX C track.")
