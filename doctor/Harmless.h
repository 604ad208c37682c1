// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::doctor {

/// Makes text that others wrote fit to be shown: names of files, command lines,
/// words of whatever answers in the agent's place.
class Harmless final {
 public:
  /// From now on `secret` is not shown, wherever it stands. A blank one is none.
  void hide(std::string_view secret);

  /// `foreign`, which may be any bytes, on one line of at most `maxCharacters`,
  /// secrets blotted out and control and direction characters escaped.
  [[nodiscard]] std::string operator()(std::string_view foreign,
                                       std::size_t maxCharacters = 120) const;

 private:
  std::vector<std::string> secrets_;  ///< the longest first
};

}  // namespace quillmark::doctor
