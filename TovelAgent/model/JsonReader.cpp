// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/JsonReader.h"

namespace quillmark {
namespace {

std::string_view typeOf(JsonReader::Element json) {
  using enum simdjson::dom::element_type;
  switch (json.type()) {
    case ARRAY:
      return "array";
    case OBJECT:
      return "object";
    case STRING:
      return "string";
    case BOOL:
      return "boolean";
    case NULL_VALUE:
      return "null";
    default:
      return "number";
  }
}

}  // namespace

std::string JsonReader::expected(std::string_view type, Element found) {
  return std::string(type) + " expected, " + std::string(typeOf(found)) + " found";
}

}  // namespace quillmark
