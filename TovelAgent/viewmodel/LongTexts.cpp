// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/LongTexts.h"

#include <functional>

#include <QTimer>

namespace quillmark {
namespace {

/// Many times more than can be in view.
constexpr std::size_t maxRemembered = 1000;

}  // namespace

bool LongTexts::mayShow(std::string_view text) {
  auto hash = std::hash<std::string_view>{}(text);
  hash += placeOf(hash);
  if (shown_.contains(hash)) {
    return true;
  }
  if (!turns_.take()) {
    return false;
  }
  if (shown_.size() == maxRemembered) {
    shown_.clear();
  }
  shown_.insert(hash);
  return true;
}

std::size_t LongTexts::placeOf(std::size_t hash) {
  if (places_.empty()) {
    QTimer::singleShot(0, &turns_, [this] { places_.clear(); });
  }
  return places_[hash]++;
}

}  // namespace quillmark
