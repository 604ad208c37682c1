// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <boost/json/error.hpp>
#include <boost/json/string_view.hpp>

#include "model/DecodeError.h"
#include "model/JsonShape.h"

namespace quillmark {

/// Takes a parser's events and fills a value with them.
///
/// A record is judged when its object ends, and then in the order of its table:
/// a key that comes twice counts as it came last. Whatever failed, the parser
/// reads on, for a text that is no JSON is that before it is anything else.
class JsonFiller final {
 public:
  using Text = boost::json::string_view;
  using ErrorCode = boost::json::error_code;

  JsonFiller(const JsonShape& shape, void* place) : root_{&shape, place} {}

  /// The parser goes on with `piece`, which `left` more bytes will follow;
  /// without a value nobody knows how many.
  void goesOn(std::string_view piece, std::optional<std::size_t> left);

  /// Whether the elements of lists have become far larger than their text is, as
  /// no list does that says something.
  [[nodiscard]] bool isSwelling() const;

  /// What kept the value from being filled, once the parser is done.
  [[nodiscard]] std::optional<DecodeError> takeFailure() { return std::move(failure_); }

  // What the parser asks of its handler. Sizes are bounded by the text's own.
  static constexpr std::size_t max_object_size = std::numeric_limits<std::size_t>::max();
  static constexpr std::size_t max_array_size = std::numeric_limits<std::size_t>::max();
  static constexpr std::size_t max_key_size = std::numeric_limits<std::size_t>::max();
  static constexpr std::size_t max_string_size = std::numeric_limits<std::size_t>::max();

  bool on_document_begin(ErrorCode& /*error*/) { return true; }
  bool on_document_end(ErrorCode& /*error*/) { return true; }
  bool on_object_begin(ErrorCode& error);
  bool on_object_end(std::size_t count, ErrorCode& error);
  bool on_array_begin(ErrorCode& error);
  bool on_array_end(std::size_t count, ErrorCode& error);
  bool on_key_part(Text text, std::size_t size, ErrorCode& error);
  bool on_key(Text text, std::size_t size, ErrorCode& error);
  bool on_string_part(Text text, std::size_t size, ErrorCode& error);
  bool on_string(Text text, std::size_t size, ErrorCode& error);
  bool on_number_part(Text /*text*/, ErrorCode& /*error*/) { return true; }
  bool on_int64(std::int64_t number, Text text, ErrorCode& error);
  bool on_uint64(std::uint64_t number, Text text, ErrorCode& error);
  bool on_double(double number, Text text, ErrorCode& error);
  bool on_bool(bool flag, ErrorCode& error);
  bool on_null(ErrorCode& error);
  bool on_comment_part(Text /*text*/, ErrorCode& /*error*/) { return true; }
  bool on_comment(Text /*text*/, ErrorCode& /*error*/) { return true; }

 private:
  static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

  /// Where a value goes; nowhere if it is ignored.
  struct Target {
    const JsonShape* shape = nullptr;
    void* place = nullptr;
  };

  /// An object or array that has begun and not ended.
  struct Open {
    Target target;
    std::size_t start;           ///< where in the text it begins
    std::size_t current = none;  ///< the index of the member or element that is read
    std::uint64_t seen = 0;      ///< a bit for each member that came
    std::vector<std::pair<std::size_t, DecodeError>> failures = {};  ///< by index
  };

  [[nodiscard]] const JsonMember* currentMember() const;
  [[nodiscard]] Target nextTarget();
  [[nodiscard]] Target nextElement(Open& array);
  void makeRoom(const Open& array) const;
  void chooseMember(std::string_view key);
  void begin(JsonShape::Kind kind);
  void end();
  void beginString();
  void number(std::optional<std::int64_t> whole);
  void append(Text text);
  void fit();
  void heard(Text text);
  [[nodiscard]] std::size_t position() const;
  [[nodiscard]] std::optional<std::size_t> left() const;

  void came();
  void fail(DecodeError failure);
  void mismatch(const Target& target, std::string_view found);

  std::string_view piece_;
  const char* heard_ = nullptr;   ///< where in the piece, as far as the events told
  std::size_t before_ = 0;        ///< how much of the text came before the piece
  std::size_t elementBytes_ = 0;  ///< of all elements so far, with those forgotten again
  std::optional<std::size_t> after_;
  Target root_;
  std::optional<DecodeError> failure_;
  std::vector<Open> open_;
  std::size_t ignoredDepth_ = 0;   ///< of the containers that nobody wants
  std::string key_;                ///< what came of a key that comes in parts
  std::string* string_ = nullptr;  ///< where the string goes; null if it is ignored
  bool inString_ = false;
};

}  // namespace quillmark
