"""The readers that vorn-bench measures, as the page shows them."""

# Reader: its name for people, and its colour.  Those without a colour are not drawn.
READERS = {
    "library": ("vorn_parsers", "#1b6ca8"),
    "library-copying": ("copying texts", None),
    "library-settings": ("realistic client", "#7fb3d9"),
    "library-file": ("from a file", None),
    "pipeline": ("pipeline alone", "#9aa0a6"),
    "toml++": ("toml++", "#d9822b"),
    "cpptoml": ("cpptoml", "#c25b56"),
    "toml11": ("toml11", "#8d6fb8"),
    "simdjson": ("simdjson", "#3a9a78"),
    "RapidJSON": ("RapidJSON", "#93c47d"),
    "classes": ("looking up bytes", None),
}

# Other parsers of TOML, and parsers of JSON.
TOML = ["toml++", "cpptoml", "toml11"]
JSON = ["simdjson", "RapidJSON"]
LIMIT = "classes"


def names_of(readers):
    return [READERS[reader][0] for reader in readers]
