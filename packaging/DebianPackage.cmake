# What CPack needs to know for `cpack -G DEB`; ./build.sh package runs it on the release build.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veldmark)
set(CPACK_PACKAGE_VENDOR "Veldmark developers")
set(CPACK_PACKAGE_CONTACT "Veldmark developers <developers@veldmark.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "send the whole computer's traffic through Tor")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Veldmark sends the whole computer's traffic through the Tor network, and
brings it back. In strict mode a firewall lets nothing leave the computer but
Tor's own traffic, from before Tor has started until you disconnect; in proxy
mode the system's proxy settings point at Tor.
.
It checks the exit address as the world sees it, the direct path and
DNS, supports bridges and exit countries, and shows Tor's circuits and
log. veldmark is the desktop application, veldmarkctl the same
for terminals, scripts and servers.
.
It contains no Tor: it uses the tor that is installed.")

# Libraries by what the programs were linked with; the rest is what they and the helper run.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(qml_modules qml6-module-qtquick qml6-module-qtquick-templates qml6-module-qtquick-window
    qml6-module-qtquick-layouts qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript)
list(JOIN qml_modules ", " qml_modules)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "${qml_modules}, ca-certificates, ethtool, iproute2, nftables, passwd, polkitd | policykit-1, pkexec | policykit-1, util-linux (>= 2.36)")
# Without tor the program says what to install; it may also be one of the user's own.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "tor, tor-geoipdb, sudo, gnupg, gpgv, libglib2.0-bin, qt6-qpa-plugins, qt6-wayland, unzip")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS
    "obfs4proxy, snowflake-client, netcat-openbsd, fonts-noto-color-emoji, fonts-noto-core, fonts-wqy-microhei | fonts-noto-cjk, systemd-resolved")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_LIST_DIR}/debian/prerm;${CMAKE_CURRENT_LIST_DIR}/debian/postinst;${CMAKE_CURRENT_LIST_DIR}/debian/postrm")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
