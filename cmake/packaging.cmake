# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# The Debian package, built by `./package`. What the binaries link to is found by dpkg-shlibdeps;
# listed here is what they load at run time.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME melvado)
set(CPACK_PACKAGE_VENDOR "The Melvado authors")
set(CPACK_PACKAGE_CONTACT "The Melvado authors <melvado@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "learn to recognise jazz chords by ear")
set(CPACK_PACKAGE_DESCRIPTION
    "Plays one to four of 134 jazz chords over MIDI or its own synthesiser;\nthe student names each by a click on a board that shows the chords in\nnotation and as symbols. With free practice, training, test and exam.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6sql6-sqlite, libqt6svg6, fluid-soundfont-gm | timgm6mb-soundfont, fonts-noto-core, fonts-noto-cjk")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libpq5")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "jackd")
include(CPack)
