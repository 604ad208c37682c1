// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/LongText.h"

#include <algorithm>

namespace quillmark {
namespace {

// In bytes, of which a character may have four.
constexpr std::size_t pieceLength = 4000;
constexpr std::size_t longestWait = 200;  // for white space to end a piece with

bool isBlank(char byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

bool isAmidCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Where the piece with this index begins, which depends on the text nearby alone.
std::size_t beginOf(std::string_view text, std::size_t index) {
  const auto latest = std::min(index * pieceLength, text.size());
  if (latest == 0 || latest == text.size()) {
    return latest;
  }
  const auto near = text.substr(latest - longestWait, longestWait);
  if (const auto blank = std::find_if(near.rbegin(), near.rend(), isBlank); blank != near.rend()) {
    const auto begin = latest - static_cast<std::size_t>(blank - near.rbegin());
    return text.substr(begin - 1, 2) == "\r\n" ? begin + 1 : begin;
  }
  auto begin = latest;
  while (begin > latest - longestWait && isAmidCharacter(text[begin])) {
    --begin;
  }
  return begin;
}

std::string_view withoutLineBreak(std::string_view line) {
  for (const std::string_view end : {"\r\n", "\n", "\r"}) {
    if (line.ends_with(end)) {
      return line.substr(0, line.size() - end.size());
    }
  }
  return line;
}

QString pieceOf(std::string_view text, std::size_t index) {
  const auto begin = beginOf(text, index);
  const auto end = beginOf(text, index + 1);
  auto piece = text.substr(begin, end - begin);
  if (end < text.size()) {
    piece = withoutLineBreak(piece);
  }
  return QString::fromUtf8(piece.data(), static_cast<qsizetype>(piece.size()));
}

QString withEllipsisIf(bool isLong, const QString& beginning) {
  return isLong ? beginning + QStringLiteral("…") : beginning;
}

}  // namespace

LongText::LongText(const Snapshot<std::string>& text, const QString& before)
    : beginning_(before + pieceOf(*text, 0)), isLong_(quillmark::isLong(*text)), text_(text) {}

QString LongText::shortened() const { return withEllipsisIf(isLong_, beginning_); }

std::optional<QString> LongText::piece(std::size_t index) const {
  if (index == 0) {
    return beginning_;
  }
  const auto text = text_.lock();
  return text && index * pieceLength < text->size() ? std::optional(pieceOf(*text, index))
                                                    : std::nullopt;
}

bool isLong(std::string_view text) { return text.size() > pieceLength; }

QString shortened(std::string_view text) { return withEllipsisIf(isLong(text), pieceOf(text, 0)); }

}  // namespace quillmark
