// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Codec.h"

#include <boost/json/serialize.hpp>

#include "model/JsonWriter.h"

namespace quillmark {

template <Record R>
Decoded<R> decode(std::string_view json) {
  Decoder<R> decoder;
  decoder.take(json, 0);
  return decoder.finish();
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
