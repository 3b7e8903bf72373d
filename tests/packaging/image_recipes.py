"""Reads what the recipes for images state: CMake's flags, and the packages of files.

Of BitBake's language this knows assignments of values in double quotes, which is all that the
recipe has (checks/recipes.py refuses the rest).  Buildroot's file is read by Make itself.
"""

import fnmatch
import re

from commands import Failure, run

OPTIONS = ("diagnosis", "config", "tool")
# What Yocto's configuration has these stand for.
YOCTO = {"PN": "vorn-parsers", "libdir": "/usr/lib", "bindir": "/usr/bin",
         "includedir": "/usr/include", "datadir": "/usr/share", "mandir": "/usr/share/man",
         "SOLIBS": ".so.*", "SOLIBSDEV": ".so"}
# What Buildroot has done before it reads a package's file.
BUILDROOT = r"""
qstrip = $(strip $(subst ",,$(1)))
cmake-package =
include {file}
print:
	@echo '$({variable})'
"""


class Recipe:
    """The recipe for Yocto."""

    def __init__(self, path, **variables):
        text = re.sub(r"^#.*\n", "", path.read_text(encoding="ascii").replace("\\\n", ""),
                      flags=re.MULTILINE)
        self.variables = {}
        self.defaults = {**YOCTO, **variables}
        for name, value in re.findall(r'^(\S+) [?+]*=\+? "(.*)"$', text, re.MULTILINE):
            self.variables[name] = value

    def expand(self, text):
        known = {**self.variables, **self.defaults}
        return re.sub(r"\$\{(\w+)\}", lambda found: self.expand(known[found[1]]), text)

    def flags(self, chosen):
        """CMake's flags with these of PACKAGECONFIG."""
        found = self.expand(self.variables["EXTRA_OECMAKE"]).split()
        for option in OPTIONS:
            fields = self.variables[f"PACKAGECONFIG[{option}]"].split(",")
            found.append(fields[0 if option in chosen else 1])
        return sorted(found)

    def patterns(self):
        """The packages, and patterns of their files, which stand for what is below, too."""
        prefix = "FILES:"
        return {self.expand(name[len(prefix):]): self.expand(value).split()
                for name, value in self.variables.items() if name.startswith(prefix)}

    def packages_of(self, file):
        return sorted(
            package for package, patterns in self.patterns().items()
            if any(fnmatch.fnmatchcase(file, pattern) or file.startswith(pattern + "/")
                   for pattern in patterns))


def buildroot_flags(path, directory, chosen, **variables):
    """CMake's flags of Buildroot's package, where these of its options are chosen."""
    makefile = directory / "Makefile"
    symbol = "BR2_PACKAGE_VORN_PARSERS_"
    given = {**variables, **{f"{symbol}{option.upper()}": "y" for option in chosen}}
    makefile.write_text(
        "".join(f"{name} = {value}\n" for name, value in given.items())
        + BUILDROOT.format(file=path, variable="VORN_PARSERS_CONF_OPTS"), encoding="ascii")
    said = run(["make", "-s", "-f", makefile, "print"])
    flags = said.split()
    if not flags or not all(flag.startswith("-D") for flag in flags):
        raise Failure(f"{path} gives {said}")
    return sorted(flags)
