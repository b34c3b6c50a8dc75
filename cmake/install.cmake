# Installs the files below the prefix. The samples go where the program looks for them, relative to its own folder.
include(GNUInstallDirs)
install(TARGETS ornavo ornavo-cli)
foreach(sample Aurora Classic)
    install(DIRECTORY skins/${sample} DESTINATION ${CMAKE_INSTALL_DATADIR}/ornavo/skins)
endforeach()
foreach(size 16 32 48 128)
    install(FILES packaging/ornavo-${size}.png RENAME ornavo.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES packaging/ornavo.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/ornavo.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/ornavo.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
