# What `cmake --install` and `cpack` take along: the program, its data compressor, the importer of old books, its
# statement tool, entry and icon for the desktop, papers.
include(GNUInstallDirs)
install(TARGETS haeon haeon-import haeon-jet-rows jetsql RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# What makes the package cannot read a Korean file name: the program lies under a Latin one, its own name is a link.
install(PROGRAMS $<TARGET_FILE:compressor> DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME haeon-compressor)
install(CODE "file(CREATE_LINK haeon-compressor \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/$<TARGET_FILE_NAME:compressor>\" SYMBOLIC)")
install(FILES packaging/haeon.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/haeon.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES docs/guide.ko.md docs/notices.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME haeon)
set(CPACK_PACKAGE_CONTACT "haeon maintainers <maintainers@haeon.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Back office of an LPG retailer (Korean)")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The toolkit's own boxes in Korean; the fonts of grids, papers and the bank's reading line.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-nanum, fonts-baekmuk, fonts-ocr-b")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups-client")
include(CPack)
