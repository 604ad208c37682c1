// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/JsonFiller.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <exception>
#include <functional>

namespace quillmark {
namespace {

using Kind = JsonShape::Kind;

constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

std::string_view nameOf(Kind kind) {
  switch (kind) {
    case Kind::boolean:
      return "boolean";
    case Kind::integer:
      return "integer";
    case Kind::string:
      return "string";
    case Kind::array:
      return "array";
    case Kind::object:
      break;
  }
  return "object";
}

/// Addresses that nothing was written to cost no memory, so room may be far too
/// much. Where addresses are counted as memory there may be none: then what it is
/// for grows like any other.
template <class Reserve>
void makeRoomBy(const Reserve& reserve) {
  try {
    reserve();
  } catch (const std::exception&) {
  }
}

/// The failure as it is told one step further out.
DecodeError within(std::string step, DecodeError failure) {
  const bool separate = !failure.path.empty() && failure.path.front() != '[';
  failure.path = std::move(step) + (separate ? "." : "") + failure.path;
  return failure;
}

}  // namespace

bool JsonFiller::isSwelling() const {
  // An empty text takes 32 bytes, and two in JSON.
  constexpr std::size_t spare = 16 * mebibyte;
  constexpr std::size_t usual = 3;  // times the text
  return elementBytes_ > spare && elementBytes_ - spare > usual * position();
}

void JsonFiller::goesOn(std::string_view piece, std::optional<std::size_t> left) {
  before_ += piece_.size();
  piece_ = piece;
  heard_ = piece.data();
  // Nobody says more and means it.
  after_ = left ? std::optional(std::min(*left, 1024 * mebibyte)) : std::nullopt;
}

bool JsonFiller::on_object_begin(ErrorCode& /*error*/) {
  begin(Kind::object);
  return true;
}

bool JsonFiller::on_object_end(std::size_t /*count*/, ErrorCode& /*error*/) {
  end();
  return true;
}

bool JsonFiller::on_array_begin(ErrorCode& /*error*/) {
  begin(Kind::array);
  return true;
}

bool JsonFiller::on_array_end(std::size_t /*count*/, ErrorCode& /*error*/) {
  end();
  return true;
}

bool JsonFiller::on_key_part(Text text, std::size_t /*size*/, ErrorCode& /*error*/) {
  if (ignoredDepth_ > 0) {
    return true;
  }
  // More than this is no key of any record.
  constexpr std::size_t enough = 256;
  key_.append(text.substr(0, enough - std::min(enough, key_.size())));
  return true;
}

bool JsonFiller::on_key(Text text, std::size_t size, ErrorCode& error) {
  heard(text);
  if (ignoredDepth_ > 0) {
    return true;
  }
  if (key_.empty()) {
    chooseMember({text.data(), text.size()});
    return true;
  }
  on_key_part(text, size, error);
  chooseMember(key_);
  key_.clear();
  return true;
}

bool JsonFiller::on_string_part(Text text, std::size_t /*size*/, ErrorCode& /*error*/) {
  if (!std::exchange(inString_, true)) {
    beginString();
  }
  append(text);
  return true;
}

bool JsonFiller::on_string(Text text, std::size_t /*size*/, ErrorCode& /*error*/) {
  heard(text);
  if (std::exchange(inString_, false)) {
    append(text);
    fit();
  } else if (beginString(); string_ != nullptr) {
    if (text.size() <= string_->capacity()) {
      string_->assign(text.data(), text.size());
    } else {
      // No larger than it need be, which it would be if it grew.
      *string_ = std::string(text.data(), text.size());
    }
  }
  if (std::exchange(string_, nullptr) != nullptr) {
    came();
  }
  return true;
}

bool JsonFiller::on_int64(std::int64_t value, Text /*text*/, ErrorCode& /*error*/) {
  number(value);
  return true;
}

// Comes for what is beyond the range of the signed one.
bool JsonFiller::on_uint64(std::uint64_t /*value*/, Text /*text*/, ErrorCode& /*error*/) {
  number(std::nullopt);
  return true;
}

bool JsonFiller::on_double(double value, Text /*text*/, ErrorCode& /*error*/) {
  // 2.0 and 1e3 are integers as well. Below 2^63 on either side the conversion
  // is exact; what reads as -2^63 may be a number beyond it that was rounded.
  constexpr double limit = 9223372036854775808.0;
  const bool whole = value > -limit && value < limit && std::trunc(value) == value;
  number(whole ? std::optional(static_cast<std::int64_t>(value)) : std::nullopt);
  return true;
}

bool JsonFiller::on_bool(bool flag, ErrorCode& /*error*/) {
  const auto target = nextTarget();
  if (target.shape == nullptr) {
    return true;
  }
  if (target.shape->kind != Kind::boolean) {
    mismatch(target, "boolean");
    return true;
  }
  *static_cast<bool*>(target.place) = flag;
  came();
  return true;
}

bool JsonFiller::on_null(ErrorCode& /*error*/) {
  const auto* const member = currentMember();
  if (member != nullptr && member->forget != nullptr) {
    member->forget(open_.back().target.place);
    came();
  } else if (const auto target = nextTarget(); target.shape != nullptr) {
    mismatch(target, "null");
  }
  return true;
}

/// The member whose value comes next; null if it is none's.
const JsonMember* JsonFiller::currentMember() const {
  if (ignoredDepth_ > 0 || open_.empty() || open_.back().current == none) {
    return nullptr;
  }
  const auto& [shape, place] = open_.back().target;
  return shape->kind == Kind::object ? &shape->members[open_.back().current] : nullptr;
}

JsonFiller::Target JsonFiller::nextTarget() {
  if (ignoredDepth_ > 0) {
    return {};
  }
  if (open_.empty()) {
    return root_;
  }
  if (open_.back().target.shape->kind == Kind::array) {
    return nextElement(open_.back());
  }
  const auto* const member = currentMember();
  return member == nullptr ? Target{}
                           : Target{member->shape, member->place(open_.back().target.place)};
}

JsonFiller::Target JsonFiller::nextElement(Open& array) {
  if (!array.failures.empty()) {
    return {};
  }
  ++array.current;
  constexpr std::size_t enough = 32;
  if (array.current >= enough && std::has_single_bit(array.current)) {
    makeRoom(array);
  }
  const auto& [shape, place] = array.target;
  elementBytes_ += shape->elementSize;
  return {shape->element, shape->append(place)};
}

// What was read tells how many elements will come. Growing without that holds
// them twice.
void JsonFiller::makeRoom(const Open& array) const {
  if (const auto left = this->left()) {
    const auto read = static_cast<double>(position() - array.start);
    const auto more =
        static_cast<double>(array.current) * static_cast<double>(*left) / std::max(read, 1.0);
    constexpr double margin = 1.02;
    const auto count = array.current + 1 + static_cast<std::size_t>(more * margin);
    makeRoomBy([&] { array.target.shape->reserve(array.target.place, count); });
  }
}

void JsonFiller::chooseMember(std::string_view key) {
  auto& record = open_.back();
  const auto& members = record.target.shape->members;
  // Most agents keep to the table's order.
  const std::size_t next = record.current + 1;
  if (next < members.size() && members[next].key == key) {
    record.current = next;
    return;
  }
  const auto found = std::ranges::find(members, key, &JsonMember::key);
  record.current =
      found == members.end() ? none : static_cast<std::size_t>(found - members.begin());
}

void JsonFiller::begin(Kind kind) {
  const auto target = nextTarget();
  if (target.shape == nullptr) {
    ++ignoredDepth_;
  } else if (target.shape->kind != kind) {
    mismatch(target, nameOf(kind));
    ++ignoredDepth_;
  } else {
    if (kind == Kind::array) {
      target.shape->clear(target.place);
    }
    open_.push_back({target, position()});
  }
}

void JsonFiller::end() {
  if (ignoredDepth_ > 0) {
    --ignoredDepth_;
    return;
  }
  auto ended = std::move(open_.back());
  open_.pop_back();
  const auto& members = ended.target.shape->members;
  for (std::size_t index = 0; index < members.size(); ++index) {
    const bool came = (ended.seen >> index & 1) != 0;
    if (!came && members[index].forget == nullptr) {
      ended.failures.push_back(
          {index,
           {DecodeFailure::keyNotFound, std::string(members[index].key), "required key missing"}});
    }
  }
  if (ended.failures.empty()) {
    came();
  } else {
    fail(std::move(std::ranges::min_element(ended.failures, {}, [](const auto& failure) {
                     return failure.first;
                   })->second));
  }
}

void JsonFiller::beginString() {
  const auto target = nextTarget();
  if (target.shape == nullptr) {
    return;
  }
  if (target.shape->kind != Kind::string) {
    mismatch(target, "string");
    return;
  }
  string_ = static_cast<std::string*>(target.place);
  string_->clear();
}

void JsonFiller::number(std::optional<std::int64_t> whole) {
  const auto target = nextTarget();
  if (target.shape == nullptr) {
    return;
  }
  if (target.shape->kind != Kind::integer) {
    mismatch(target, "number");
  } else if (!whole) {
    fail({DecodeFailure::dataCorrupted, {}, "a whole number of 64 bits expected"});
  } else {
    *static_cast<std::int64_t*>(target.place) = *whole;
    came();
  }
}

// A string that grows by doubling is held twice while it is copied.
void JsonFiller::append(Text text) {
  constexpr std::size_t roomForAny = 256 * mebibyte;
  if (string_ == nullptr) {
    return;
  }
  const auto size = string_->size() + text.size();
  if (size > string_->capacity() && size >= mebibyte) {
    makeRoomBy([&] { string_->reserve(size + left().value_or(roomForAny)); });
  }
  string_->append(text.data(), text.size());
}

// Gives back what was too much room, but where that means copying much: a text has
// no more than a handful of strings that keep addresses for nothing.
void JsonFiller::fit() {
  constexpr std::size_t much = 16 * mebibyte;
  if (string_ != nullptr && string_->size() < std::min(much, string_->capacity() / 2)) {
    string_->shrink_to_fit();
  }
}

// A text that had to be unescaped lies elsewhere and tells nothing.
void JsonFiller::heard(Text text) {
  const auto* const end = piece_.data() + piece_.size();
  if (!std::less<>()(text.data(), heard_) && !std::less<>()(end, text.data())) {
    heard_ = text.data();
  }
}

std::size_t JsonFiller::position() const {
  return before_ + static_cast<std::size_t>(heard_ - piece_.data());
}

/// How much of the text is not read yet, where that is known.
std::optional<std::size_t> JsonFiller::left() const {
  return after_ ? std::optional(before_ + piece_.size() + *after_ - position()) : std::nullopt;
}

// The value that is read has come, and what failed of it before counts no more.
void JsonFiller::came() {
  if (open_.empty()) {
    return;
  }
  auto& around = open_.back();
  if (around.target.shape->kind == Kind::object) {
    around.seen |= std::uint64_t{1} << around.current;
    if (!around.failures.empty()) {
      std::erase_if(around.failures,
                    [&](const auto& earlier) { return earlier.first == around.current; });
    }
  }
}

void JsonFiller::fail(DecodeError failure) {
  if (open_.empty()) {
    failure_ = std::move(failure);
    return;
  }
  came();
  auto& around = open_.back();
  const auto& shape = *around.target.shape;
  auto step = shape.kind == Kind::object ? std::string(shape.members[around.current].key)
                                         : '[' + std::to_string(around.current) + ']';
  around.failures.emplace_back(around.current, within(std::move(step), std::move(failure)));
}

// A record must be an object, and null is no exception there.
void JsonFiller::mismatch(const Target& target, std::string_view found) {
  const Kind expected = target.shape->kind;
  const bool isMissing = found == "null" && expected != Kind::object;
  fail({isMissing ? DecodeFailure::valueNotFound : DecodeFailure::typeMismatch,
        {},
        std::string(nameOf(expected)) + " expected, " + std::string(found) + " found"});
}

}  // namespace quillmark
