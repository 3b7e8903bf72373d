"""That what pkg-config says leads to where the libraries are, also at another place."""

import os
import pathlib
import shlex

from commands import Failure, clean_environment, run
from consumer_build import LIBRARY_OF, build_with_pkg_config, check_run


def check_leads_to(place, libdir, *options, **variables):
    """The directories that are named are those below `place`, however they are written."""
    environment = clean_environment(PKG_CONFIG_PATH=f"{place}/{libdir}/pkgconfig", **variables)
    for library in LIBRARY_OF.values():
        said = run(["pkg-config", *options, "--cflags", "--libs", library], env=environment)
        directories = [word[:2] + os.path.normpath(word[2:]) for word in shlex.split(said)
                       if word.startswith(("-I", "-L"))]
        if directories != [f"-I{place}/include", f"-L{place}/{libdir}"]:
            raise Failure(f"pkg-config {' '.join(options)} {library} says {said!r} at {place}")


def check_moved(place, libdir, program, version, mark):
    """Where all has been moved to, a client is built with --define-prefix."""
    check_leads_to(place, libdir, "--define-prefix")
    libraries = pathlib.Path(place) / libdir
    build_with_pkg_config(program, path=libraries / "pkgconfig", options=["--define-prefix"])
    check_run(program, version, mark, LD_LIBRARY_PATH=str(libraries))


def check_staged(build, libdir, stage):
    """In a sysroot, pkg-config is told where that is."""
    for prefix in ("/usr", "/opt/vorn"):
        run(["cmake", "--install", build, "--component", "Development", "--prefix", prefix],
            env=clean_environment(DESTDIR=str(stage)))
        check_leads_to(f"{stage}{prefix}", libdir, PKG_CONFIG_SYSROOT_DIR=str(stage))
