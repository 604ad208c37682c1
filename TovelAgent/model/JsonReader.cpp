// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/JsonReader.h"

#include <utility>

#include <boost/json/basic_parser_impl.hpp>

#include "model/JsonFiller.h"

namespace quillmark {
namespace {

// Deep enough that no ignored value of a sensible body refuses it, shallow
// enough that a hostile one cannot exhaust the stack.
constexpr std::size_t maxNesting = 512;

constexpr std::size_t longestStep = std::size_t{64} * 1024;

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
    auto& filler = parser_.handler();
    filler.goesOn(piece, left);
    boost::json::error_code error;
    const std::size_t used = parser_.write_some(more, piece.data(), piece.size(), error);
    if (!error && used < piece.size()) {
      error = boost::json::error::extra_data;
    }
    if (error) {
      failure_ = {DecodeFailure::dataCorrupted, {}, error.message()};
    } else if (filler.isSwelling()) {
      failure_ = {DecodeFailure::dataCorrupted, {}, "lists far larger than their text"};
    }
  }

  [[nodiscard]] std::optional<DecodeError> takeFailure() {
    return failure_ ? std::move(failure_) : parser_.handler().takeFailure();
  }

 private:
  boost::json::basic_parser<JsonFiller> parser_;
  std::optional<DecodeError> failure_;
};

JsonReader::JsonReader(const JsonShape& shape, void* place)
    : parser_(std::make_unique<Parser>(shape, place)) {}

JsonReader::~JsonReader() = default;

void JsonReader::take(std::string_view piece, std::optional<std::size_t> left) {
  // A long piece is no reason to look less often at what becomes of it.
  while (piece.size() > longestStep) {
    const auto after = piece.size() - longestStep;
    parser_->write(true, piece.substr(0, longestStep), left ? std::optional(after + *left) : left);
    piece.remove_prefix(longestStep);
  }
  parser_->write(true, piece, left);
}

std::optional<DecodeError> JsonReader::finish() {
  parser_->write(false, {}, 0);
  return parser_->takeFailure();
}

}  // namespace quillmark
