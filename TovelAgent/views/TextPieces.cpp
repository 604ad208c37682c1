// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "views/TextPieces.h"

#include <algorithm>

namespace quillmark {
namespace {

constexpr int pieceRole = Qt::DisplayRole;

constexpr qsizetype pieceLength = 4000;
constexpr qsizetype longestWait = 200;  // for white space to end a piece with
constexpr qsizetype worthCollecting = 100'000;

}  // namespace

TextPieces::~TextPieces() { letGo(); }

void TextPieces::setText(const QString& text) {
  if (text == text_) {
    return;
  }
  letGo();
  beginResetModel();
  text_ = text;
  shown_ = 1;
  endResetModel();
  Q_EMIT textChanged();
}

bool TextPieces::isShort() const { return text_.size() <= pieceLength; }

int TextPieces::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shown_; }

QVariant TextPieces::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != pieceRole) {
    return {};
  }
  const auto begin = beginOf(index.row());
  return text_.sliced(begin, beginOf(index.row() + 1) - begin);
}

QHash<int, QByteArray> TextPieces::roleNames() const {
  return {{pieceRole, QByteArrayLiteral("piece")}};
}

bool TextPieces::hasNext() const { return shown_ * pieceLength < text_.size(); }

void TextPieces::showNext() {
  if (hasNext()) {
    beginInsertRows({}, shown_, shown_);
    ++shown_;
    endInsertRows();
  }
}

/// The script engine keeps texts that passed through it until it cleans up,
/// which in a panel that hardly runs scripts may be never.
void TextPieces::letGo() {
  auto* const engine = qmlEngine(this);
  if (text_.size() >= worthCollecting && engine != nullptr) {
    QMetaObject::invokeMethod(
        engine, [engine] { engine->collectGarbage(); }, Qt::QueuedConnection);
  }
}

/// Where the piece with this index begins, which depends on the text nearby alone.
qsizetype TextPieces::beginOf(qsizetype index) const {
  const auto latest = std::min(index * pieceLength, text_.size());
  if (latest == 0 || latest == text_.size()) {
    return latest;
  }
  for (auto begin = latest; begin > latest - longestWait; --begin) {
    if (text_[begin - 1].isSpace()) {
      return begin;
    }
  }
  const bool splitsCharacter =
      text_[latest - 1].isHighSurrogate() && text_[latest].isLowSurrogate();
  return splitsCharacter ? latest - 1 : latest;
}

}  // namespace quillmark
