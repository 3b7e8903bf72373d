"""What CMake says of a build, where it is asked to before it configures."""

import json

API = ".cmake/api/v1"


def ask(build):
    query = build / API / "query/codemodel-v2"
    query.parent.mkdir(parents=True, exist_ok=True)
    query.touch()


def reply(build, name):
    return json.loads((build / API / "reply" / name).read_text(encoding="utf-8"))


def configuration(build):
    """The only one, as CMake said when it configured last."""
    index = max(path.name for path in (build / API / "reply").glob("index-*.json"))
    model = reply(build, index)["reply"]["codemodel-v2"]["jsonFile"]
    (only,) = reply(build, model)["configurations"]
    return only


def targets(build):
    return {target["name"] for target in configuration(build)["targets"]}


def components(build):
    """Those of which something is installed."""
    directories = [reply(build, directory["jsonFile"])
                   for directory in configuration(build)["directories"]]
    return {installer["component"]
            for directory in directories for installer in directory["installers"]}
