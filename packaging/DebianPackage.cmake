# `cpack --preset release` makes the Debian package of what was built.
set(stages "~dev" "~alpha${POURBOOK_STAGE_NUMBER}" "~beta${POURBOOK_STAGE_NUMBER}" "")
list(GET stages ${POURBOOK_STAGE} stage)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tipplewise-pourbook)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION}${stage})
set(CPACK_PACKAGE_CONTACT "Tipplewise Pourbook developers <pourbook@tipplewise.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "http://${POURBOOK_VENDOR_SITE}/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "cocktail guide that knows what is in your liquor cabinet")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
Pourbook lists cocktails and narrows the list at every key you type, by drink
or by ingredient. Tick the bottles that are at home, and it shows only what
you can make with them: a bottle of Rye also counts as Whiskey.

It comes with more than 850 recipes, from the official classics to punches,
shots and drinks without alcohol, each with its quantities and its glass. You
rate drinks, collect them in lists, write recipes of your own, and it says
what to buy next. Your library is one encrypted file, and there is no account.")

# What the program is linked with is found by dpkg-shlibdeps. What Qt loads while it runs is not: the plug-ins for
# accents that are typed with two keys, and the road to a Wayland desktop, which else shows the program through X.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-qpa-plugins)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")

# CPack reads it at its start, and again when the files of the package stand ready.
configure_file(PreparePackage.cmake.in PreparePackage.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/PreparePackage.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/PreparePackage.cmake)

include(CPack)
