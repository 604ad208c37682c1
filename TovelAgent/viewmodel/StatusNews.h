// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QString>

#include "viewmodel/DashboardViewModel.h"
#include "viewmodel/StatusPresentation.h"

namespace quillmark {

/// What a screen reader announces of the header: how it differs from what the user was
/// told before. Polls that change nothing are not news. UI thread only.
class StatusNews : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(quillmark::DashboardViewModel* viewModel MEMBER viewModel_ WRITE setViewModel REQUIRED)
  Q_PROPERTY(bool isListening MEMBER isListening_ WRITE setListening)

 public:
  using QObject::QObject;

  void setViewModel(DashboardViewModel* viewModel);

  /// While the user does not listen, news wait; then only the difference is told.
  void setListening(bool isListening);

 Q_SIGNALS:
  void told(const QString& text);

 private:
  void tell();

  QPointer<DashboardViewModel> viewModel_;
  bool isListening_ = false;
  bool hasPolled_ = false;
  std::optional<StatusPresentation> told_;
};

/// How `now` differs from `before`, which has no value at first; empty if it does not.
[[nodiscard]] QString newsBetween(const std::optional<StatusPresentation>& before,
                                  const StatusPresentation& now);

}  // namespace quillmark
