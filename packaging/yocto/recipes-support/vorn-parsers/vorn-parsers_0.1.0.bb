SUMMARY = "Event reader for TOML"
DESCRIPTION = "Checks TOML documents and calls a visitor for every header, key, array, \
inline table and scalar. Libraries on top explain mistakes, and fill structs by schemas."
SECTION = "libs"
# No licence has been chosen for this work.
LICENSE = "CLOSED"

# What your layers call the ANTLR 3 C runtime, and the device's utility library.
VORN_ANTLR3C ?= "libantlr3c"
VORN_UTILS ?= "device-utils"
DEPENDS = "${VORN_ANTLR3C} ${VORN_UTILS}"

# Where the archive is: a mirror of yours, or a directory, file:///srv/archives.
VORN_MIRROR ?= "https://downloads.vorn.example"
SRC_URI = "${VORN_MIRROR}/${BP}.tar.xz"
# scripts/release fills it in.
SRC_URI[sha256sum] = "0000000000000000000000000000000000000000000000000000000000000000"

inherit cmake pkgconfig

# The file of the device's utility library.
VORN_UTILS_LIBRARY ?= "${STAGING_LIBDIR}/libdevice_utils.so"

# The libraries on top, and the tool: both of these need the diagnosis.
PACKAGECONFIG ??= "diagnosis config"
PACKAGECONFIG[diagnosis] = "-DVORN_DIAGNOSIS=ON,-DVORN_DIAGNOSIS=OFF"
PACKAGECONFIG[config] = "-DVORN_CONFIG=ON,-DVORN_CONFIG=OFF"
PACKAGECONFIG[tool] = "-DVORN_TOOL=ON,-DVORN_TOOL=OFF,cli11 nlohmann-json"

EXTRA_OECMAKE = "\
    -DVORN_TESTS=OFF \
    -DVORN_INSTALL=ON \
    -DVORN_UTILS_LIBRARY=${VORN_UTILS_LIBRARY} \
    -DCMAKE_SKIP_INSTALL_RPATH=ON \
"

PACKAGES =+ "${PN}-diagnosis ${PN}-config ${PN}-tool"

FILES:${PN} = "${libdir}/libvorn_parsers${SOLIBS}"
FILES:${PN}-diagnosis = "${libdir}/libvorn_toml_diagnosis${SOLIBS}"
FILES:${PN}-config = "${libdir}/libvorn_toml_config${SOLIBS}"
FILES:${PN}-tool = "${bindir}/vorn-toml ${datadir}/bash-completion"
FILES:${PN}-doc = "${mandir}"
FILES:${PN}-dev = "${includedir} ${libdir}/lib*${SOLIBSDEV} ${libdir}/cmake ${libdir}/pkgconfig"

# Of one build: each has parts of the others compiled in.
RDEPENDS:${PN}-diagnosis = "${PN} (= ${EXTENDPKGV})"
RDEPENDS:${PN}-config = "${PN} (= ${EXTENDPKGV}) ${PN}-diagnosis (= ${EXTENDPKGV})"
RDEPENDS:${PN}-tool = "${PN} (= ${EXTENDPKGV}) ${PN}-diagnosis (= ${EXTENDPKGV})"
