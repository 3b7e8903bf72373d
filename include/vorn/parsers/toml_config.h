// vorn_toml_config: a document's values, checked, and where they stand.
//
// This header includes the others of the library, libvorn_toml_config:
//
//   toml_values.h   the value of a scalar's text
//   toml_places.h   the line and column of what a visitor is called for
//
// It is a library of its own, on top of vorn_parsers and vorn_toml_diagnosis.
#ifndef VORN_PARSERS_TOML_CONFIG_H
#define VORN_PARSERS_TOML_CONFIG_H

#include <vorn/parsers/toml_places.h>
#include <vorn/parsers/toml_values.h>

#endif
