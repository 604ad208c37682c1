// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Codec.h"

#include <algorithm>
#include <new>
#include <utility>

#include <boost/json/serialize.hpp>

#include "model/JsonReader.h"
#include "model/JsonWriter.h"

namespace quillmark {
namespace {

namespace dom = simdjson::dom;

constexpr std::size_t maxNesting = 512;
// The parser counts the document itself as a level.
constexpr std::size_t parserDepth = maxNesting + 1;
// With a smaller capacity the parser allocates again and loses the nesting limit.
constexpr std::size_t minCapacity = 64;

/// Parses `json` into `document`. The text and the parser, the larger part of the
/// memory, are freed before the records are created.
simdjson::simdjson_result<dom::element> parse(std::string json, dom::document& document) {
  // JSON must not begin with a byte order mark, but some versions of simdjson skip it.
  if (json.starts_with("\xEF\xBB\xBF")) {
    return simdjson::UTF8_ERROR;
  }
  json.reserve(json.size() + simdjson::SIMDJSON_PADDING);
  dom::parser parser;
  if (const auto error = parser.allocate(std::max(json.size(), minCapacity), parserDepth)) {
    return error;
  }
  return parser.parse_into_document(document, json);
}

}  // namespace

template <Record R>
Decoded<R> decode(std::string json) {
  dom::document document;
  dom::element root;
  const auto error = parse(std::move(json), document).get(root);
  if (error == simdjson::MEMALLOC) {
    throw std::bad_alloc();
  }
  if (error) {
    return DecodeError{DecodeFailure::dataCorrupted, {}, simdjson::error_message(error)};
  }
  R record;
  JsonReader reader;
  if (!reader.read(root, record)) {
    return reader.takeFailure();
  }
  return record;
}

template <Record R>
std::string encode(const R& record) {
  return boost::json::serialize(JsonWriter::write(record));
}

#define QUILLMARK_DEFINE_CODEC(R)          \
  template Decoded<R> decode(std::string); \
  template std::string encode(const R&);
QUILLMARK_FOR_EACH_RECORD(QUILLMARK_DEFINE_CODEC)
#undef QUILLMARK_DEFINE_CODEC

}  // namespace quillmark
