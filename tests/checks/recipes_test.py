"""Tests checks/recipes.py: recipes_test.py SCRIPT

Each case changes one place of the recipes as they are.
"""

import pathlib
import sys
import unittest

from small_tree import check, tree_of

SOURCE = pathlib.Path(sys.argv[1]).parent.parent
YOCTO = "packaging/yocto/recipes-support/vorn-parsers/"
BUILDROOT = "packaging/buildroot/package/vorn-parsers/"
RECIPE = YOCTO + "vorn-parsers_1.2.3.bb"
MK = BUILDROOT + "vorn-parsers.mk"
CONFIG_IN = BUILDROOT + "Config.in"
HASH = BUILDROOT + "vorn-parsers.hash"


def sources():
    """The recipes, of version 1.2.3, and a build that has their options."""
    (recipe,) = (SOURCE / YOCTO).glob("*.bb")
    version = recipe.stem.partition("_")[2]
    files = {RECIPE: recipe.read_text(encoding="utf-8")}
    for name in (MK, CONFIG_IN, HASH):
        files[name] = (SOURCE / name).read_text(encoding="utf-8").replace(version, "1.2.3")
    files["CMakeLists.txt"] = "project(vorn_parsers VERSION 1.2.3 LANGUAGES C CXX)\n"
    files["cmake/Parts.cmake"] = "VORN_TESTS VORN_INSTALL VORN_DIAGNOSIS VORN_CONFIG VORN_TOOL\n"
    files["platform/CMakeLists.txt"] = "set(VORN_UTILS_LIBRARY)\n"
    return files


NO_STATEMENT = 'is not NAME = "VALUE"'
OF_YOCTO = [
    ('SECTION = "libs"\n', 'SECTION = "libs" \n', "blanks at the end"),
    ('SECTION = "libs"\n', 'SECTION =\t"libs"\n', "it has tabs"),
    ('SECTION = "libs"\n', 'SECTION="libs"\n', NO_STATEMENT),
    ('SECTION = "libs"\n', "SECTION = libs\n", NO_STATEMENT),
    ('SECTION = "libs"\n', "SECTION = 'libs'\n", NO_STATEMENT),
    ('SECTION = "libs"\n', "", "has no SECTION"),
    ('SECTION = "libs"\n', f'SECTION = "libs"\n# {"x" * 99}\n', "more than 100 columns"),
    ('SUMMARY = "Event', f'SUMMARY = "{"x" * 72}Event', "SUMMARY has more than 72"),
    ('for TOML"\nD', 'for TOML."\nD', "ends with a full stop"),
    ('SECTION = "libs"\n', 'HOMEPAGE = "x"\nSECTION = "libs"\n', None),
    ('SECTION = "libs"\n', 'SECTION = "libs"\nHOMEPAGE = "x"\n', "HOMEPAGE comes after SECTION"),
    ('SECTION = "libs"\n', 'DESCRIPTION = "x"\nSECTION = "libs"\n', "DESCRIPTION is there twice"),
    ('LICENSE = "CLOSED"', 'LICENSE = "MIT"\nLIC_FILES_CHKSUM = "file://LICENSE"', None),
    ("inherit cmake pkgconfig\n", "", "has no inherit"),
    ("inherit cmake pkgconfig\n", 'inherit cmake pkgconfig\nS = "x"\n', "S comes after inherit"),
    ("PACKAGES =+", "inherit x\nPACKAGES =+", "inherit is there twice"),
    ("EXTRA_OECMAKE =", 'FILES:x = "x"\nEXTRA_OECMAKE =', "EXTRA_OECMAKE comes after FILES:x"),
    ("-DVORN_CONFIG=OFF", "-DVORN_CONFIG=NO", "PACKAGECONFIG[config] does not start with"),
    (",-DVORN_CONFIG=OFF", "", "PACKAGECONFIG[config] does not start with"),
    (",cli11 nlohmann-json", ",1,2,3,4,5", "PACKAGECONFIG[tool] does not start with"),
    ('??= "diagnosis config"', '??= "diagnosis all"', "PACKAGECONFIG has all"),
    ("-DVORN_TESTS=OFF", "-DVORN_TEST=OFF", "the build has no option VORN_TEST"),
    ('LICENSE = "CLOSED"', 'LICENSE = "MIT"', "needs LIC_FILES_CHKSUM"),
    ('sha256sum] = "0', 'sha256sum] = "1', "the checksum is filled in"),
    ('${PN}-tool"\n', '${PN}-tool ${PN}-more"\n', "${PN}-more has no FILES"),
    ('FILES:${PN} =', 'FILES:${PN}-x =', "${PN} has no FILES"),
]
OF_BUILDROOT = [
    (MK, "####\n#\n# vorn-parsers\n", "###\n#\n# vorn-parsers\n", "does not start with the name"),
    (MK, "# vorn-parsers\n", "# parsers\n", "does not start with the name"),
    (MK, "\n$(eval $(cmake-package))\n", "$(eval $(cmake-package))\n", "does not end with"),
    (MK, "VERSION = 1.2.3", "VERSION = 1.2.4", "has not the version 1.2.3"),
    (MK, "VORN_PARSERS_REDISTRIBUTE =", "PARSERS_REDISTRIBUTE =", "is not VORN_PARSERS_..."),
    (MK, "VORN_PARSERS_REDISTRIBUTE =", "VORN_PARSERS_REDISTRIBUTE=", "is not VORN_PARSERS_..."),
    (MK, "\t-DVORN_INSTALL=ON", "    -DVORN_INSTALL=ON", "is indented by one tab"),
    (MK, "-DVORN_INSTALL=ON", "-DVORN_INSTALLED=ON", "the build has no option VORN_INSTALLED"),
    (MK, "# No licence", f"# {'x' * 79}\n# No licence", "more than 80 columns"),
    (MK, "(BR2_PACKAGE_VORN_PARSERS_TOOL)", "(BR2_PACKAGE_VORN_PARSERS_PROGRAM)",
     "has no BR2_PACKAGE_VORN_PARSERS_PROGRAM"),
    (CONFIG_IN, "\t  Event reader", "\tEvent reader", "a line of help has"),
    (CONFIG_IN, "\t  Event reader", f"\t  {'x' * 60} Event reader", "a line of help has"),
    (CONFIG_IN, "\thelp\n", "        help\n", "indented by tabs"),
    (CONFIG_IN, "config BR2_PACKAGE_VORN_PARSERS_SITE", "config BR2_PACKAGE_VORN_SITE",
     "does not start with BR2_PACKAGE_VORN_PARSERS"),
    (HASH, "sha256  0", "sha256  1", "has not the archive's name"),
    (HASH, "sha256  0", "sha256 0", "has not the archive's name"),
    (HASH, "1.2.3", "1.2.4", "has not the archive's name"),
    (HASH, ".xz\n", ".xz", "does not end with one line break"),
]


class Recipes(unittest.TestCase):
    def check(self, files):
        with tree_of(files) as root:
            return check(sys.argv[1], root)

    def expect_said(self, name, old, new, said):
        files = sources()
        self.assertIn(old, files[name])
        files[name] = files[name].replace(old, new, 1)
        status, output = self.check(files)
        lines = output.splitlines()[1:]
        if said is None:
            self.assertEqual((status, lines), (0, []))
        else:
            self.assertEqual(status, 1)
            self.assertTrue(any(said in line for line in lines), output)

    def test_recipes_as_they_are(self):
        self.assertEqual(self.check(sources()),
                         (0, "1 recipe for Yocto, and Buildroot's package\n"))

    def test_yocto(self):
        for old, new, said in OF_YOCTO:
            with self.subTest(old=old, new=new):
                self.expect_said(RECIPE, old, new, said)

    def test_buildroot(self):
        for name, old, new, said in OF_BUILDROOT:
            with self.subTest(name=name, old=old, new=new):
                self.expect_said(name, old, new, said)

    def test_other_version(self):
        files = sources()
        files["CMakeLists.txt"] = files["CMakeLists.txt"].replace("1.2.3", "1.2.4")
        status, output = self.check(files)
        self.assertEqual(status, 1)
        self.assertIn("is not named after the version, 1.2.4", output)

    def test_no_recipe(self):
        files = sources()
        del files[RECIPE]
        self.assertEqual(self.check(files)[0], 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
