// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "model/Field.h"
#include "platform/Uuid.h"

namespace quillmark {

/// One open socket of the machine; an element of `NetworkResponse::connections`.
/// Ports and the process id are strings in JSON; a number there is an error.
struct NetworkConnection {
  std::string connectionProtocol;  ///< "protocol" in JSON; the only name that differs
  std::string local_address;
  std::string local_port;
  std::string remote_address;
  std::string remote_port;
  std::string state;                      ///< free text, such as "ESTABLISHED"
  std::optional<std::string> pid;         ///< id of the process that owns the socket
  std::optional<std::string> risk_level;  ///< free text

  static constexpr auto fields =
      std::tuple{Field{"protocol", &NetworkConnection::connectionProtocol},
                 Field{"local_address", &NetworkConnection::local_address},
                 Field{"local_port", &NetworkConnection::local_port},
                 Field{"remote_address", &NetworkConnection::remote_address},
                 Field{"remote_port", &NetworkConnection::remote_port},
                 Field{"state", &NetworkConnection::state},
                 Field{"pid", &NetworkConnection::pid},
                 Field{"risk_level", &NetworkConnection::risk_level}};

  /// A new random id at every call, see `InstalledApp::id`. Any thread.
  [[nodiscard]] Uuid id() const { return randomUuid(); }

  friend bool operator==(const NetworkConnection&, const NetworkConnection&) = default;
};

}  // namespace quillmark
