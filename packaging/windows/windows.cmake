install(TARGETS trassix RUNTIME DESTINATION .)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . RENAME LICENSE.txt)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/copyright" DESTINATION . RENAME COPYRIGHT.txt)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples" DESTINATION .)

set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_FILE_NAME "trassix-${PROJECT_VERSION}-windows-x64")
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/cpack_options.cmake")

set(CPACK_NSIS_DEFINES "Target amd64-unicode")
set(CPACK_NSIS_DISPLAY_NAME Trassix)
set(CPACK_NSIS_PACKAGE_NAME Trassix)
set(CPACK_NSIS_MUI_ICON "${PROJECT_SOURCE_DIR}/packaging/icons/trassix.ico")
set(CPACK_NSIS_MUI_UNIICON "${PROJECT_SOURCE_DIR}/packaging/icons/trassix.ico")
set(CPACK_NSIS_INSTALLED_ICON_NAME trassix.exe)
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_NSIS_MUI_FINISHPAGE_RUN trassix.exe)
set(CPACK_NSIS_MANIFEST_DPI_AWARE ON)
# Plans open with a double-click, unless their extension belongs to another program: then that stays
# and ours is among those to open them with.
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS [[
  WriteRegStr SHCTX "Software\Classes\Trassix.Layout" "" "Trassix layout"
  WriteRegStr SHCTX "Software\Classes\Trassix.Layout\DefaultIcon" "" "$INSTDIR\trassix.exe,0"
  WriteRegStr SHCTX "Software\Classes\Trassix.Layout\shell\open\command" "" '"$INSTDIR\trassix.exe" "%1"'
  ReadRegStr $R0 SHCTX "Software\Classes\.txl" ""
  StrCmp $R0 "" 0 +2
  WriteRegStr SHCTX "Software\Classes\.txl" "" "Trassix.Layout"
  WriteRegStr SHCTX "Software\Classes\.txl\OpenWithProgids" "Trassix.Layout" ""
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, i 0, i 0)'
]])
set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS [[
  DeleteRegKey SHCTX "Software\Classes\Trassix.Layout"
  DeleteRegValue SHCTX "Software\Classes\.txl\OpenWithProgids" "Trassix.Layout"
  ReadRegStr $R0 SHCTX "Software\Classes\.txl" ""
  StrCmp $R0 "Trassix.Layout" 0 +2
  DeleteRegValue SHCTX "Software\Classes\.txl" ""
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, i 0, i 0)'
]])
# A newer version takes the place of the one that is there.
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
