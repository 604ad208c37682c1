// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ConnectionPresentation.h"

namespace quillmark {

ConnectionPresentation present(const NetworkConnection& connection) {
  ConnectionPresentation row;
  row.localEndpoint =
      QString::fromStdString(connection.local_address + ":" + connection.local_port);
  row.remoteEndpoint =
      QString::fromStdString("\u2192 " + connection.remote_address + ":" + connection.remote_port);
  row.state = QString::fromStdString(connection.state);
  row.accessibleName =
      QStringList{row.localEndpoint, row.remoteEndpoint, row.state}.join(QStringLiteral(", "));
  return row;
}

}  // namespace quillmark
