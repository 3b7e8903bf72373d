"""Fails where the recipes for images are not written as Yocto and Buildroot want it, or do not
fit each other and the build.

    recipes.py [ROOT]
"""

import argparse
import re
import sys
from pathlib import Path

NAME = "vorn-parsers"
YOCTO = f"packaging/yocto/recipes-support/{NAME}"
BUILDROOT = f"packaging/buildroot/package/{NAME}"
CONFIG_IN, MK, HASH = (f"{BUILDROOT}/{file}" for file in
                       ("Config.in", f"{NAME}.mk", f"{NAME}.hash"))
SYMBOL = "BR2_PACKAGE_VORN_PARSERS"
# No archive can hold its own checksum: scripts/release puts it in the place of this one.
PLACEHOLDER = "0" * 64

# What a recipe has to have, and in which order; a flag such as PACKAGECONFIG[tool], or a package's
# variable such as FILES:${PN}-tool, has the place of the variable.
ORDER = ("SUMMARY", "DESCRIPTION", "HOMEPAGE", "SECTION", "LICENSE", "LIC_FILES_CHKSUM", "DEPENDS",
         "SRC_URI", "S", "inherit", "PACKAGECONFIG", "EXTRA_OECMAKE", "PACKAGES", "FILES",
         "RDEPENDS")
REQUIRED = ("SUMMARY", "DESCRIPTION", "SECTION", "LICENSE", "SRC_URI", "SRC_URI[sha256sum]",
            "inherit")
ASSIGNMENT = re.compile(r'([A-Z][\w:${}-]*(?:\[[\w-]+\])?) (\?\?=|\?=|=|\+=|=\+) "([^"]*)"')


def lines_of_text(name, text, width):
    """What holds for each line of a file, whatever it says."""
    if not text.endswith("\n") or text.endswith("\n\n"):
        yield f"{name}: it does not end with one line break"
    for number, line in enumerate(text.splitlines(), 1):
        if line != line.rstrip():
            yield f"{name}:{number}: blanks at the end of the line"
        if len(line.expandtabs(8)) > width:
            yield f"{name}:{number}: the line has more than {width} columns"


def check_statements(name, text):
    """The statements of a recipe: findings, and the assigned values in their order."""
    found, values = [], {}
    for number, line in enumerate(text.replace("\\\n", "").splitlines(), 1):
        if matched := ASSIGNMENT.fullmatch(line):
            variable, value = matched[1], matched[3]
        elif matched := re.fullmatch(r"(inherit)((?: [a-z][\w-]*)+)", line):
            variable, value = matched[1], matched[2]
        else:
            if line and not line.startswith("# "):
                found.append(f"{name}: statement {number} is not NAME = \"VALUE\": {line[:40]}")
            continue
        if variable in values:
            found.append(f"{name}: {variable} is there twice")
        values[variable] = " ".join(value.split())
    return found, values


def check_order(name, values):
    places = [(ORDER.index(base), variable) for variable in values
              if (base := re.split(r"[:\[]", variable)[0]) in ORDER]
    for (place, variable), (following, later) in zip(places, places[1:]):
        if following < place:
            yield f"{name}: {later} comes after {variable}"
    for variable in REQUIRED:
        if variable not in values:
            yield f"{name} has no {variable}"


def check_package_config(name, values):
    prefix = "PACKAGECONFIG["
    options = {variable[len(prefix):-1]: value.split(",") for variable, value in values.items()
               if variable.startswith(prefix)}
    for option, fields in options.items():
        switch = f"-DVORN_{option.upper()}"
        if not 2 <= len(fields) <= 6 or fields[:2] != [f"{switch}=ON", f"{switch}=OFF"]:
            yield f"{name}: PACKAGECONFIG[{option}] does not start with {switch}=ON,{switch}=OFF"
    for option in values.get("PACKAGECONFIG", "").split():
        if option not in options:
            yield f"{name}: PACKAGECONFIG has {option}, and nothing says what it is"


def check_recipe(name, text, version):
    yield from lines_of_text(name, text, 100)
    if "\t" in text:
        yield f"{name}: it has tabs"
    if Path(name).name != f"{NAME}_{version}.bb":
        yield f"{name} is not named after the version, {version}"
    found, values = check_statements(name, text)
    yield from found
    yield from check_order(name, values)
    yield from check_package_config(name, values)
    summary = values.get("SUMMARY", "")
    if len(summary) > 72 or summary.endswith("."):
        yield f"{name}: SUMMARY has more than 72 characters, or ends with a full stop"
    if values.get("LICENSE") != "CLOSED" and "LIC_FILES_CHKSUM" not in values:
        yield f"{name}: with that LICENSE it needs LIC_FILES_CHKSUM"
    if values.get("SRC_URI[sha256sum]") != PLACEHOLDER:
        yield f"{name}: the checksum is filled in by scripts/release"
    for package in ["${PN}", "${PN}-dev", *values.get("PACKAGES", "").split()]:
        if f"FILES:{package}" not in values:
            yield f"{name}: {package} has no FILES"


def check_mk(text, version, symbols):
    yield from lines_of_text(MK, text, 80)
    rule = "#" * 80
    if not text.startswith(f"{rule}\n#\n# {NAME}\n#\n{rule}\n\n"):
        yield f"{MK} does not start with the name between two lines of 80 #"
    if not text.endswith("\n\n$(eval $(cmake-package))\n"):
        yield f"{MK} does not end with an empty line and $(eval $(cmake-package))"
    if f"\nVORN_PARSERS_VERSION = {version}\n" not in text:
        yield f"{MK} has not the version {version}"
    continued = False
    for number, line in enumerate(text.splitlines(), 1):
        if continued and not re.match(r"\t\S", line):
            yield f"{MK}:{number}: a line that goes on is indented by one tab"
        if not continued and not re.match(
                r"$|#|ifeq \(|else$|endif$|\$\(eval |VORN_PARSERS_[A-Z_]+ \+?= (?=\S)", line):
            yield f"{MK}:{number} is not VORN_PARSERS_... = VALUE: {line}"
        continued = line.endswith("\\")
    for symbol in sorted(set(re.findall(r"\bBR2_PACKAGE_\w+", text)) - symbols):
        yield f"{MK}: {CONFIG_IN} has no {symbol}"


def check_config_in(text):
    yield from lines_of_text(CONFIG_IN, text, 80)
    in_help = False
    for number, line in enumerate(text.splitlines(), 1):
        if in_help and line.startswith("\t"):
            if not re.match(r"\t  \S", line) or len(line.expandtabs(8)) > 72:
                yield f"{CONFIG_IN}:{number}: a line of help has a tab, two blanks, 72 columns"
        elif line.startswith(" "):
            yield f"{CONFIG_IN}:{number}: lines are indented by tabs"
        in_help = line == "\thelp" or (in_help and line.startswith("\t"))
    for symbol in re.findall(r"^config (\w+)$", text, re.MULTILINE):
        if symbol != SYMBOL and not symbol.startswith(SYMBOL + "_"):
            yield f"{CONFIG_IN}: {symbol} does not start with {SYMBOL}"


def check_hash(text, version):
    yield from lines_of_text(HASH, text, 120)
    hashes = [line for line in text.splitlines() if not line.startswith("#")]
    if hashes != [f"sha256  {PLACEHOLDER}  {NAME}-{version}.tar.xz"]:
        yield f"{HASH} has not the archive's name, after the checksum that scripts/release fills in"


def check_options(root, texts):
    """Options that recipes switch are options of the build."""
    cmake = "".join(path.read_text(encoding="utf-8") for path in
                    (*root.glob("CMakeLists.txt"), *root.glob("*/CMakeLists.txt"),
                     *root.glob("cmake/*.cmake")))
    for name, text in texts.items():
        for option in sorted(set(re.findall(r"-D(VORN_\w+)=", text))):
            if not re.search(rf"\b{option}\b", cmake):
                yield f"{name}: the build has no option {option}"


def findings(root, recipes):
    def text_of(name):
        return (root / name).read_text(encoding="utf-8")

    version = re.search(r"\(vorn_parsers VERSION ([\d.]+)", text_of("CMakeLists.txt"))[1]
    for recipe in recipes:
        yield from check_recipe(recipe, text_of(recipe), version)
    config_in = text_of(CONFIG_IN)
    yield from check_config_in(config_in)
    symbols = set(re.findall(r"^config (\w+)$", config_in, re.MULTILINE))
    yield from check_mk(text_of(MK), version, symbols)
    yield from check_hash(text_of(HASH), version)
    yield from check_options(root, {name: text_of(name) for name in (*recipes, MK)})


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", nargs="?", type=Path, default=Path("."))
    root = parser.parse_args().root
    recipes = sorted(str(path.relative_to(root)) for path in (root / YOCTO).glob("*.bb"))
    print(f"{len(recipes)} recipe for Yocto, and Buildroot's package")
    if len(recipes) != 1:
        sys.exit("There is to be one recipe.")
    found = list(findings(root, recipes))
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
