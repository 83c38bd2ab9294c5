# The Debian package that `cpack` makes of what is installed; scripts/package calls it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tandry-vorel)
set(CPACK_PACKAGE_VENDOR "Tandry Vorel developers")
set(CPACK_PACKAGE_CONTACT "Tandry Vorel developers <developers@tandryvorel.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "make and run bots for the game Furcadia")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A bot logs in to the game as a character of yours and does what its script
says: it greets visitors, answers whispers, rolls dice, takes walks and
remembers things. The window tvorel has a console, one-click commands and a
script editor; vorel runs and rehearses bots in a terminal. A practice dream,
a small game world on your own computer, needs no account and no network.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded while running, so that the executables don't name them: Qt's reader of SVG icons, without which the buttons
# would have no pictures; and, for comfort, how Qt talks to a Wayland desktop, and its own texts in other languages.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n")
include(CPack)
