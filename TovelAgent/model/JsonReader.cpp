// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/JsonReader.h"

#include <cstddef>

#include <boost/json/basic_parser_impl.hpp>

#include "model/JsonFiller.h"

namespace quillmark {
namespace {

// Deep enough that no ignored value of a sensible body refuses it, shallow
// enough that a hostile one cannot exhaust the stack.
constexpr std::size_t maxNesting = 512;

}  // namespace

std::optional<DecodeError> readJson(std::string_view json, const JsonShape& shape, void* place) {
  boost::json::parse_options options;
  options.max_depth = maxNesting;
  boost::json::basic_parser<JsonFiller> parser(options, json, shape, place);
  boost::json::error_code failure;
  const std::size_t used = parser.write_some(false, json.data(), json.size(), failure);
  if (!failure && used < json.size()) {
    failure = boost::json::error::extra_data;
  }
  if (failure) {
    return DecodeError{DecodeFailure::dataCorrupted, {}, failure.message()};
  }
  return parser.handler().takeFailure();
}

}  // namespace quillmark
