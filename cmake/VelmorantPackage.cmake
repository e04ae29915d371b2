# Copyright Velmorant. All Rights Reserved.
# "cpack -G DEB" in a build folder makes a Debian package of what "cmake --install" installs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmorant)
set(CPACK_PACKAGE_VENDOR Velmorant)
set(CPACK_PACKAGE_CONTACT "Velmorant <toolkit@velmorant.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "checks and drives Unreal projects that use the Velmorant toolkit")
set(CPACK_PACKAGE_DESCRIPTION "Looks for the toolkit's collision set-up in projects and repairs it, runs scripts that\ndo in a project what a level designer would do, and the toolkit's tests, without the engine.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS libsecret-tools) # where passwords are remembered on desktops
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};ALL;/")
include(CPack)
