// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QStringList>

#include "viewmodel/LongText.h"

namespace quillmark {

/// The pieces of a text that a view shows: the first one, and another with each
/// `showNext()`: not by `fetchMore()`, which views call as they like. A text that
/// begins with the same pieces takes the place of another unseen. UI thread only.
class TextPieces : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(quillmark::LongText text READ text WRITE setText NOTIFY textChanged REQUIRED)
  /// Whether the text has a single piece.
  Q_PROPERTY(bool isShort READ isShort NOTIFY textChanged)

 public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] LongText text() const { return text_; }
  void setText(const LongText& text);
  [[nodiscard]] bool isShort() const { return !text_.isLong(); }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  /// The piece, in the one role, `piece`.
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Adds the next piece; false if there is none.
  Q_INVOKABLE bool showNext();

 Q_SIGNALS:
  void textChanged();

 private:
  LongText text_;
  QStringList shown_;
};

}  // namespace quillmark
