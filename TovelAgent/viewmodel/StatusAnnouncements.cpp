// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/StatusAnnouncements.h"

#include <QStringList>

namespace quillmark {

QString announcementFor(const std::optional<StatusPresentation>& before,
                        const StatusPresentation& now) {
  const bool wasConnected = before && before->isConnected;
  if (!now.isConnected) {
    if (!before) {
      return QStringLiteral("Not connected to the agent");
    }
    return wasConnected ? QStringLiteral("Connection to the agent lost") : QString();
  }

  QStringList parts;
  if (!wasConnected) {
    parts << QStringLiteral("Connected to the agent");
  }
  if (!wasConnected || now.status != before->status) {
    parts << QStringLiteral("Status: ") + now.status;
  }
  if (!wasConnected || now.threats != before->threats) {
    parts << QStringLiteral("Threats: ") + now.threats;
  }
  return parts.join(QStringLiteral(". "));
}

void StatusAnnouncements::setViewModel(DashboardViewModel* viewModel) {
  if (viewModel_) {
    viewModel_->disconnect(this);
  }
  viewModel_ = viewModel;
  if (viewModel_) {
    connect(viewModel_, &DashboardViewModel::statusChanged, this, [this] {
      hasPolled_ = true;
      announceChange();
    });
  }
}

void StatusAnnouncements::setWindowActive(bool isWindowActive) {
  isWindowActive_ = isWindowActive;
  announceChange();
}

void StatusAnnouncements::announceChange() {
  if (!isWindowActive_ || !hasPolled_ || !viewModel_) {
    return;
  }
  const auto now = viewModel_->statusPresentation();
  const auto announcement = announcementFor(announced_, now);
  announced_ = now;
  if (!announcement.isEmpty()) {
    Q_EMIT announced(announcement);
  }
}

}  // namespace quillmark
