// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "viewmodel/Turns.h"

namespace quillmark {

/// The long texts that were shown, and so need no turn to be shown again. Without turns, a
/// list whose rows in view all become long would block the window for 0.2 s: the first of
/// them fills the view, but the others are laid out before they leave it. UI thread only.
class LongTexts {
 public:
  /// A text of more characters is long.
  static constexpr std::size_t longest = 1000;

  explicit LongTexts(Turns& turns) : turns_(turns) {}

  /// Whether the long text may be shown now, or only its beginning until `Turns::eased`. A
  /// text that several rows show takes a turn for each of them.
  [[nodiscard]] bool mayShow(std::string_view text);

 private:
  /// Which of the places that show the same text, counted until the event loop goes on.
  [[nodiscard]] std::size_t placeOf(std::size_t hash);

  Turns& turns_;
  std::unordered_map<std::size_t, std::size_t> places_;
  // Texts and places, as hashes.
  std::unordered_set<std::size_t> shown_;
};

}  // namespace quillmark
