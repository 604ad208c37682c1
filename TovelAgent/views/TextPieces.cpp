// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "views/TextPieces.h"

#include <algorithm>
#include <cstddef>

namespace quillmark {
namespace {

constexpr int pieceRole = Qt::DisplayRole;

}  // namespace

void TextPieces::setText(const LongText& text) {
  std::size_t index = 0;
  const bool goesOn = !shown_.isEmpty() && std::ranges::all_of(shown_, [&](const QString& piece) {
    return text.piece(index++) == piece;
  });
  text_ = text;
  if (!goesOn) {
    beginResetModel();
    shown_ = {text.beginning()};
    endResetModel();
  }
  Q_EMIT textChanged();
}

int TextPieces::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant TextPieces::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != pieceRole) {
    return {};
  }
  return shown_[index.row()];
}

QHash<int, QByteArray> TextPieces::roleNames() const {
  return {{pieceRole, QByteArrayLiteral("piece")}};
}

bool TextPieces::showNext() {
  const auto next = text_.piece(static_cast<std::size_t>(shown_.size()));
  if (!next) {
    return false;
  }
  beginInsertRows({}, rowCount(), rowCount());
  shown_.append(*next);
  endInsertRows();
  return true;
}

}  // namespace quillmark
