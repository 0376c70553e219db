include(GNUInstallDirs)
# The program folder: the executables with dictionary/, docs/ and profile/ beside them, as in
# the build.
set(ZENTREL_INSTALL_FOLDER ${CMAKE_INSTALL_LIBDIR}/zentrel)
install(TARGETS zentrel-cli RUNTIME DESTINATION ${ZENTREL_INSTALL_FOLDER})
if(ZENTREL_WITH_UI)
  install(TARGETS zentrel RUNTIME DESTINATION ${ZENTREL_INSTALL_FOLDER})
endif()
install(DIRECTORY resources/dictionary resources/docs resources/profile
        DESTINATION ${ZENTREL_INSTALL_FOLDER})

if(ZENTREL_WITH_UI)
  # The desktop entry starts "zentrel" from the PATH: a link into the program folder, which the
  # program still finds as its own folder (the link is resolved).
  install(FILES resources/zentrel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES resources/icons/zentrel.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)
  file(RELATIVE_PATH ZENTREL_LINK_TARGET /${CMAKE_INSTALL_BINDIR}
       /${ZENTREL_INSTALL_FOLDER}/zentrel)
  install(CODE "
    set(link \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/zentrel\")
    file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(REMOVE \"\${link}\")
    file(CREATE_LINK \"${ZENTREL_LINK_TARGET}\" \"\${link}\" SYMBOLIC)
    message(STATUS \"Linking: \${link} -> ${ZENTREL_LINK_TARGET}\")")
endif()
