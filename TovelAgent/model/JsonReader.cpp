// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/JsonReader.h"

#include <utility>

namespace quillmark {
namespace {

std::string_view nameOf(const boost::json::value& json) {
  switch (json.kind()) {
    case boost::json::kind::null:
      return "null";
    case boost::json::kind::bool_:
      return "boolean";
    case boost::json::kind::string:
      return "string";
    case boost::json::kind::array:
      return "array";
    case boost::json::kind::object:
      return "object";
    case boost::json::kind::int64:
    case boost::json::kind::uint64:
    case boost::json::kind::double_:
      break;
  }
  return "number";
}

std::string difference(std::string_view expected, const boost::json::value& found) {
  return std::string(expected) + " expected, " + std::string(nameOf(found)) + " found";
}

}  // namespace

bool JsonReader::mismatch(std::string_view expected, const boost::json::value& found) {
  const auto kind = found.is_null() ? DecodeFailure::valueNotFound : DecodeFailure::typeMismatch;
  return fail(kind, difference(expected, found));
}

// A record's value must be an object, and null is no exception there.
bool JsonReader::notAnObject(const boost::json::value& found) {
  return fail(DecodeFailure::typeMismatch, difference("object", found));
}

bool JsonReader::fail(DecodeFailure kind, std::string detail) {
  error_ = {kind, {}, std::move(detail)};
  return false;
}

bool JsonReader::within(std::string_view step) {
  const bool separate = !error_.path.empty() && error_.path.front() != '[';
  error_.path = std::string(step) + (separate ? "." : "") + error_.path;
  return false;
}

}  // namespace quillmark
