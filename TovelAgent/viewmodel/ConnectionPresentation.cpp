// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ConnectionPresentation.h"

#include <string_view>

#include <QStringList>

#include "viewmodel/DisplayText.h"

namespace quillmark {
namespace {

QString endpoint(std::string_view address, std::string_view port) {
  return displayText(address) + QLatin1Char(':') + displayText(port);
}

}  // namespace

ConnectionPresentation present(const NetworkConnection& connection) {
  ConnectionPresentation row;
  row.localEndpoint = endpoint(connection.local_address, connection.local_port);
  row.remoteEndpoint =
      QStringLiteral("→ ") + endpoint(connection.remote_address, connection.remote_port);
  row.state = displayText(connection.state);
  row.accessibleName =
      QStringList{row.localEndpoint, row.remoteEndpoint, row.state}.join(QStringLiteral(", "));
  return row;
}

}  // namespace quillmark
