"""Makes the archive of a release, of a copy of the repository."""

import shutil

from commands import Failure, clean_environment, run
from release_archive import Archive

DATE = 1700000000
# Who commits, and when; no settings of the machine's.
GIT = {"GIT_CONFIG_GLOBAL": "/dev/null", "GIT_CONFIG_NOSYSTEM": "1",
       "GIT_AUTHOR_NAME": "A", "GIT_AUTHOR_EMAIL": "a@b.c", "GIT_AUTHOR_DATE": f"{DATE} +0000",
       "GIT_COMMITTER_NAME": "A", "GIT_COMMITTER_EMAIL": "a@b.c",
       "GIT_COMMITTER_DATE": f"{DATE} +0000"}


def environment(**variables):
    """The environment without what git and CMake would listen to, and a date would come from."""
    without = ("GIT_", "CMAKE_", "SOURCE_DATE_EPOCH")
    kept = {name: value for name, value in clean_environment().items()
            if not name.startswith(without)}
    return {**kept, **variables}


def git(repository, *words, **variables):
    return run(["git", "-C", repository, *words], env=environment(**variables))


def copy_repository(source, copy):
    """A repository with one commit of all that is not ignored in this one."""
    listed = git(source, "ls-files", "-z", "--cached", "--others", "--exclude-standard")
    for name in set(listed.split("\0")) - {""}:
        if (source / name).exists():
            (copy / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(source / name, copy / name)
    git(copy, "init", "--quiet", **GIT)
    git(copy, "add", "--all", **GIT)
    git(copy, "commit", "--quiet", "--message=All", **GIT)


def make_archive(repository, version, directory, umask=0o022, **variables):
    """The archive, and what the script says."""
    work = directory / "work"
    work.mkdir(parents=True)
    said = run([repository / "scripts/release", directory], umask=umask,
               env=environment(TMPDIR=str(work), **{**GIT, **variables}))
    if left := list(work.iterdir()):
        raise Failure(f"the script leaves {left}")
    top = f"vorn-parsers-{version}"
    return Archive(directory / f"{top}.tar.xz", top), said
