// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include <QQmlEngine>
#include <QString>

#include "model/Field.h"
#include "viewmodel/Snapshot.h"

namespace quillmark {

/// A text of the agent's, which may be as long as an answer. It comes in pieces,
/// each of which is converted and laid out in a fraction of a frame: one for all
/// but the longest texts. A piece ends with white space where there is some near,
/// and never amid a character; a line break between two pieces belongs to neither,
/// for each piece begins a line.
///
/// Of a long text only the beginning is kept here, for script engines keep what
/// they have seen as long as they like; the rest is there as long as its snapshot
/// is shown. UI thread only.
class LongText {
  Q_GADGET
  QML_VALUE_TYPE(longText)

 public:
  LongText() = default;
  /// With `before` in front of it.
  explicit LongText(const Snapshot<std::string>& text, const QString& before = {});

  /// The first piece.
  [[nodiscard]] const QString& beginning() const { return beginning_; }
  /// Whether there is more of it than the first piece.
  [[nodiscard]] bool isLong() const { return isLong_; }
  /// What `shortened()` makes of the text.
  [[nodiscard]] QString shortened() const;
  /// The piece with this index, if there is one.
  [[nodiscard]] std::optional<QString> piece(std::size_t index) const;

 private:
  QString beginning_;
  bool isLong_ = false;
  std::weak_ptr<const std::string> text_;
};

/// Whether a text makes more than one piece.
[[nodiscard]] bool isLong(std::string_view text);

/// The text for where there is room for one line, or for what is read aloud at
/// once: a long one is its first piece with an ellipsis.
[[nodiscard]] QString shortened(std::string_view text);

/// Whether any text of the record makes more than one piece.
template <Record R>
[[nodiscard]] bool hasLongText(const R& record) {
  const auto isLongOne = [&]<class Value>(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
      return isLong(value);
    } else if constexpr (std::is_same_v<Value, std::optional<std::string>>) {
      return value && isLong(*value);
    } else {
      return false;
    }
  };
  return std::apply([&](const auto&... field) { return (isLongOne(record.*field.member) || ...); },
                    R::fields);
}

}  // namespace quillmark
