// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/JsonReader.h"

#include <boost/json/basic_parser_impl.hpp>

#include "model/JsonFiller.h"

namespace quillmark {
namespace {

// Deep enough that no ignored value of a sensible body refuses it, shallow
// enough that a hostile one cannot exhaust the stack.
constexpr std::size_t maxNesting = 512;

boost::json::parse_options options() {
  boost::json::parse_options options;
  options.max_depth = maxNesting;
  return options;
}

}  // namespace

class JsonReader::Parser {
 public:
  Parser(const JsonShape& shape, void* place) : parser_(options(), shape, place) {}

  void write(bool more, std::string_view piece, std::optional<std::size_t> left) {
    if (failure_) {
      return;
    }
    parser_.handler().goesOn(piece, left);
    const std::size_t used = parser_.write_some(more, piece.data(), piece.size(), failure_);
    if (!failure_ && used < piece.size()) {
      failure_ = boost::json::error::extra_data;
    }
  }

  [[nodiscard]] std::optional<DecodeError> takeFailure() {
    if (failure_) {
      return DecodeError{DecodeFailure::dataCorrupted, {}, failure_.message()};
    }
    return parser_.handler().takeFailure();
  }

 private:
  boost::json::basic_parser<JsonFiller> parser_;
  boost::json::error_code failure_;
};

JsonReader::JsonReader(const JsonShape& shape, void* place)
    : parser_(std::make_unique<Parser>(shape, place)) {}

JsonReader::~JsonReader() = default;

void JsonReader::take(std::string_view piece, std::optional<std::size_t> left) {
  parser_->write(true, piece, left);
}

std::optional<DecodeError> JsonReader::finish() {
  parser_->write(false, {}, 0);
  return parser_->takeFailure();
}

}  // namespace quillmark
