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

/// Announces to screen readers what has changed since the last announcement: the
/// connection, the status or the number of threats. UI thread only.
class StatusAnnouncements : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(quillmark::DashboardViewModel* viewModel MEMBER viewModel_ WRITE setViewModel REQUIRED)
  Q_PROPERTY(bool isWindowActive MEMBER isWindowActive_ WRITE setWindowActive)

 public:
  using QObject::QObject;

  void setViewModel(DashboardViewModel* viewModel);

  /// Nothing is announced while the window is not active. When it is active again, one
  /// announcement says what has changed meanwhile.
  void setWindowActive(bool isWindowActive);

 Q_SIGNALS:
  void announced(const QString& text);

 private:
  void announceChange();

  QPointer<DashboardViewModel> viewModel_;
  bool isWindowActive_ = false;
  bool hasPolled_ = false;
  std::optional<StatusPresentation> announced_;  ///< the header announced last, if any
};

/// Tells the change from `before`, which has no value for the first announcement, to `now`.
/// Empty if there is nothing to announce.
[[nodiscard]] QString announcementFor(const std::optional<StatusPresentation>& before,
                                      const StatusPresentation& now);

}  // namespace quillmark
