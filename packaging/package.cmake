# The Debian package: `cpack` in a release build makes it, or ./dev package.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME folioscope)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Folioscope developers")
set(CPACK_PACKAGE_CONTACT "Folioscope developers <folioscope@marrowgate.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "inspector for AFP print data streams")
set(CPACK_PACKAGE_INSTALL_DIRECTORY folioscope)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};${PROJECT_NAME};ALL;/;${PROJECT_BINARY_DIR};${PROJECT_NAME};debian;/")

# Stripping leaves the compiler's name in the programs.
foreach(program fsv fsv-dump)
  set(file "\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${program}")
  install(CODE "
    if(EXISTS \"${file}\")
      execute_process(COMMAND ${CMAKE_STRIP} --remove-section=.comment \"${file}\" COMMAND_ERROR_IS_FATAL ANY)
    endif()"
    COMPONENT debian EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "shared-mime-info, xdg-utils, qt6-translations-l10n")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Folioscope walks an AFP data stream (MO:DCA with its text, graphics, image,
bar code, font and colour objects) of up to 2 GB in any packaging, names
every structured field, nests and pairs what belongs together, and says in
readable words where each record stands and what it holds, in English,
German or French. It never changes a file.
.
The package has the desktop program fsv and, for work in batch, fsv-dump.")

include(CPack)
