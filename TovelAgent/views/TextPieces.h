// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QString>

namespace quillmark {

/// A text as pieces of which each is laid out in a fraction of a frame: one for
/// all but the longest texts. Begins with the first piece and brings another
/// with each `showNext()`: not by `fetchMore()`, which views call as they like.
/// A piece ends with white space where there is some
/// near, and never between the halves of a character. UI thread only.
class TextPieces : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged REQUIRED)
  /// Whether the text has a single piece.
  Q_PROPERTY(bool isShort READ isShort NOTIFY textChanged)

 public:
  using QAbstractListModel::QAbstractListModel;
  ~TextPieces() override;

  [[nodiscard]] QString text() const { return text_; }
  void setText(const QString& text);
  [[nodiscard]] bool isShort() const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  /// The piece, in the one role, `piece`.
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Whether there are pieces that are not shown yet.
  [[nodiscard]] bool hasNext() const;
  /// Adds the next piece, if there is one.
  Q_INVOKABLE void showNext();

 Q_SIGNALS:
  void textChanged();

 private:
  [[nodiscard]] qsizetype beginOf(qsizetype index) const;
  void letGo();

  QString text_;
  int shown_ = 1;
};

}  // namespace quillmark
