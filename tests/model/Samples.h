// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/InstalledApp.h"
#include "model/RecordJson.h"

namespace quillmark::test {

/// Fills values so that no two fields of a record have the same: a text contains its
/// key, an array has two elements, an optional has a value.
struct Sample {
  static void fill(std::string_view, bool& flag) { flag = true; }
  static void fill(std::string_view, std::int64_t& number) { number = -42; }
  static void fill(std::string_view key, std::string& text) { text = "the " + std::string(key); }

  template <class T>
  static void fill(std::string_view key, std::optional<T>& value) {
    fill(key, value.emplace());
  }

  template <class T>
  static void fill(std::string_view key, std::vector<T>& elements) {
    fill(std::string(key) + " 0", elements.emplace_back());
    fill(std::string(key) + " 1", elements.emplace_back());
  }

  template <Record R>
  static void fill(std::string_view, R& record) {
    forEachField<R>([&](const auto& field) { fill(field.key, record.*field.member); });
  }
};

/// A record with every field filled.
template <Record R>
R sample() {
  R record;
  Sample::fill("", record);
  return record;
}

/// A record with only the required fields filled.
template <Record R>
R sampleOfRequired() {
  R record;
  forEachField<R>([&](const auto& field) {
    if (!isOptional<R>(field.key)) {
      Sample::fill(field.key, record.*field.member);
    }
  });
  return record;
}

/// The members of a full JSON object of type R.
template <Record R>
Members sampleMembers() {
  return JsonText::membersOf(sample<R>());
}

/// The same, with the text of one value replaced.
template <Record R>
std::string sampleWith(std::string_view key, const std::string& value) {
  auto members = sampleMembers<R>();
  for (auto& member : members) {
    if (member.first == key) {
      member.second = value;
    }
  }
  return objectOf(members);
}

/// The same, with one more key.
template <Record R>
std::string sampleAnd(const std::string& key, const std::string& value) {
  auto members = sampleMembers<R>();
  members.emplace_back(key, value);
  return objectOf(members);
}

/// The same, with one key left out.
template <Record R>
std::string sampleWithout(std::string_view key) {
  auto members = sampleMembers<R>();
  std::erase_if(members, [&](const auto& member) { return member.first == key; });
  return objectOf(members);
}

/// An app with a name and nothing else.
inline InstalledApp appNamed(std::string name) {
  return {std::move(name), std::nullopt, std::nullopt, std::nullopt};
}

}  // namespace quillmark::test
