# The part of the room that finds what TOML 1.0 forbids.
set(strict_sources
    diagnosis/strict_brackets.cpp diagnosis/strict_bytes.cpp diagnosis/strict_dates.cpp
    diagnosis/strict_escapes.cpp diagnosis/strict_hash.cpp diagnosis/strict_keys.cpp
    diagnosis/strict_mistakes.cpp diagnosis/strict_names.cpp diagnosis/strict_numbers.cpp
    diagnosis/strict_sink.cpp diagnosis/strict_tables.cpp)
