// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::doctor {

/// Makes untrusted text safe to print: file names, command lines, and what the
/// server at the agent's port sends.
class TextSanitizer final {
 public:
  /// Replaces `secret` by a mark in everything printed from now on. An empty `secret` is ignored.
  void hide(std::string_view secret);

  /// `untrusted`, which may be any bytes, as one line of at most `maxCharacters`:
  /// secrets hidden, control and direction characters escaped.
  [[nodiscard]] std::string operator()(std::string_view untrusted,
                                       std::size_t maxCharacters = 120) const;

 private:
  [[nodiscard]] std::string withoutSecrets(std::string_view text) const;

  std::vector<std::string> secrets_;
};

}  // namespace quillmark::doctor
