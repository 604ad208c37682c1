// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QString>

#include "model/NetworkConnection.h"

namespace quillmark {

/// What a row shows of one connection.
struct ConnectionPresentation {
  Q_GADGET
  QML_VALUE_TYPE(connectionPresentation)
  Q_PROPERTY(QString localEndpoint MEMBER localEndpoint CONSTANT)
  Q_PROPERTY(QString remoteEndpoint MEMBER remoteEndpoint CONSTANT)
  Q_PROPERTY(QString state MEMBER state CONSTANT)
  Q_PROPERTY(QString accessibleName MEMBER accessibleName CONSTANT)

 public:
  QString localEndpoint;   ///< address and port, as received
  QString remoteEndpoint;  ///< the same, with a leading arrow
  QString state;
  QString accessibleName;  ///< the row's text for screen readers
};

/// Joins the texts unchanged; no brackets are added around an IPv6 address.
[[nodiscard]] ConnectionPresentation present(const NetworkConnection& connection);

}  // namespace quillmark
