"""An empty root that packages are installed into, with what they depend on.

What Debian's packages have is copied from this machine, where they are installed: only the
packages that are asked for and those that they depend on, by their lists of files.  dpkg keeps
its database in the root, and refuses what depends on something that is not there.
"""

import pathlib
import re
import subprocess

from commands import Failure, run

DATABASE = "var/lib/dpkg"


def with_dependencies(names):
    """The installed packages among these, and among what they depend on."""
    without = ("recommends", "suggests", "conflicts", "breaks", "replaces", "enhances")
    said = run(["apt-cache", "depends", "--recurse", "--installed",
                *(f"--no-{kind}" for kind in without), *names])
    candidates = [line for line in said.splitlines() if re.match(r"[a-z0-9]", line)]
    states = subprocess.run(
        ["dpkg-query", "--show", "--showformat=${binary:Package} ${db:Status-Status}\\n",
         *candidates],
        capture_output=True, text=True, check=False).stdout
    return [line.split()[0] for line in states.splitlines() if line.endswith(" installed")]


def has_dependency_problems(call, *arguments):
    """Whether dpkg refuses something because of what packages depend on."""
    try:
        call(*arguments)
    except Failure as failure:
        return "dependency problems" in str(failure)
    return False


class EmptyRoot:
    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.copied = set()
        # Debian has moved these below /usr.
        for name in ("bin", "lib", "lib64", "sbin"):
            (self.path / "usr" / name).mkdir(parents=True)
            (self.path / name).symlink_to(f"usr/{name}")
        for name in ("dev", "tmp", f"{DATABASE}/info", f"{DATABASE}/updates"):
            (self.path / name).mkdir(parents=True)
        # Programs are content with a file.
        (self.path / "dev/null").touch()
        (self.path / DATABASE / "status").touch()
        self.within = ["chroot", str(self.path)]

    def add(self, *names):
        """Puts installed packages, and what they depend on, into the root."""
        packages = [name for name in with_dependencies(names) if name not in self.copied]
        self.copied.update(packages)
        listed = run(["dpkg-query", "--listfiles", *packages]).splitlines()
        files = sorted({line for line in listed if line.startswith("/") and line != "/."})
        names = self.path / "tmp/files"
        names.write_text("".join(f".{file}\n" for file in files), encoding="utf-8")
        # What a package's own scripts have removed since cannot be read.
        run(["sh", "-c", "tar --create --no-recursion --ignore-failed-read --directory=/"
             ' --files-from="$1" 2>"$1.missing" |'
             ' tar --extract --keep-directory-symlink --directory="$2"',
             "sh", names, self.path])
        with open(self.path / DATABASE / "status", "a", encoding="utf-8") as status:
            status.write(run(["dpkg-query", "--status", *packages]) + "\n")
        for name in packages:
            (self.path / DATABASE / "info" / f"{name}.list").write_text(
                run(["dpkg-query", "--listfiles", name]), encoding="utf-8")

    def pretend(self, name, version, architecture):
        """States that a package is installed, which has nothing and depends on nothing."""
        with open(self.path / DATABASE / "status", "a", encoding="utf-8") as status:
            status.write(f"Package: {name}\nStatus: install ok installed\n"
                         f"Architecture: {architecture}\nMulti-Arch: same\n"
                         f"Version: {version}\nMaintainer: nobody <nobody@vorn.example>\n"
                         f"Description: a package of this name\n\n")
        (self.path / DATABASE / "info" / f"{name}:{architecture}.list").touch()

    def simulate(self, architectures, *archives):
        """Has apt say whether it would install packages, without any others at hand."""
        nothing = self.path / "tmp/apt"
        (nothing / "lists/partial").mkdir(parents=True, exist_ok=True)
        options = {
            "APT::Architecture": architectures[0],
            "APT::Architectures": ",".join(architectures),
            "Dir::Cache": nothing,
            "Dir::Etc::SourceList": "/dev/null",
            "Dir::Etc::SourceParts": "/dev/null",
            "Dir::State::Lists": nothing / "lists",
            "Dir::State::Status": self.path / DATABASE / "status",
        }
        return run(["apt-get", *(f"--option={name}={value}" for name, value in options.items()),
                    "--simulate", "install", *archives])

    def install(self, *archives):
        """Installs packages, as dpkg does: with their dependencies or not at all."""
        run(["dpkg", f"--root={self.path}", "--install", *archives])

    def refuses(self, *archives):
        return has_dependency_problems(self.install, *archives)

    def remove(self, *names):
        run(["dpkg", f"--root={self.path}", "--purge", *names])

    def refuses_to_remove(self, *names):
        return has_dependency_problems(self.remove, *names)

    def run(self, *command):
        return run([*self.within, *command])
