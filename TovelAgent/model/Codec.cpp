// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Codec.h"

#include <boost/json/monotonic_resource.hpp>
#include <boost/json/parse.hpp>
#include <boost/json/serialize.hpp>

#include "model/JsonReader.h"
#include "model/JsonWriter.h"

namespace quillmark {
namespace {

// Deep enough that no ignored value of a sensible body refuses it, shallow
// enough that a hostile one cannot exhaust the stack.
constexpr std::size_t maxNesting = 512;

}  // namespace

template <Record R>
Decoded<R> decode(std::string_view json) {
  boost::json::monotonic_resource arena;
  boost::json::parse_options options;
  options.max_depth = maxNesting;
  boost::json::error_code failure;
  const auto document = boost::json::parse({json.data(), json.size()}, failure, &arena, options);
  if (failure) {
    return DecodeError{DecodeFailure::dataCorrupted, {}, failure.message()};
  }

  R record;
  JsonReader reader;
  if (!reader.read(document, record)) {
    return reader.error();
  }
  return record;
}

template <Record R>
std::string encode(const R& record) {
  return boost::json::serialize(JsonWriter::write(record));
}

#define QUILLMARK_DEFINE_CODEC(R)               \
  template Decoded<R> decode(std::string_view); \
  template std::string encode(const R&);
QUILLMARK_FOR_EACH_RECORD(QUILLMARK_DEFINE_CODEC)
#undef QUILLMARK_DEFINE_CODEC

}  // namespace quillmark
