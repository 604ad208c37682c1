// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Codec.h"

#include <algorithm>
#include <bit>
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

// Memory for texts up to this size is kept for the thread's next text. Otherwise the system
// would have to provide zeroed memory at every poll, which takes as long as parsing.
constexpr std::size_t maxKeptText = std::size_t{2} << 20U;

struct ParserMemory {
  dom::parser parser;
  dom::document document;
};

ParserMemory& memoryOfThread() {
  thread_local ParserMemory memory;
  return memory;
}

/// The root of the parsed text. Takes the text by value, so that its memory is free before
/// the record is created.
simdjson::simdjson_result<dom::element> parse(std::string json, ParserMemory& memory) {
  // JSON must not begin with a byte order mark, but some versions of simdjson skip it.
  if (json.starts_with("\xEF\xBB\xBF")) {
    return simdjson::UTF8_ERROR;
  }
  static_assert(decodePadding >= simdjson::SIMDJSON_PADDING);
  json.reserve(json.size() + decodePadding);
  auto& [parser, document] = memory;
  // Rounded, so that a text that is a little longer does not need a new parser.
  const auto capacity = std::bit_ceil(std::max(json.size(), minCapacity));
  if (parser.capacity() < capacity) {
    if (const auto error = parser.allocate(capacity, parserDepth)) {
      return error;
    }
  }
  return parser.parse_into_document(document, json);
}

}  // namespace

template <Record R>
Decoded<R> decode(std::string json) {
  ParserMemory temporary;
  auto& memory = json.size() <= maxKeptText ? memoryOfThread() : temporary;
  dom::element root;
  const auto error = parse(std::move(json), memory).get(root);
  // Frees the larger part of the memory before the record is created.
  temporary.parser = dom::parser();
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
