// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/SessionBus.h"

#include <dbus/dbus.h>
#include <QDeadlineTimer>

#include <unistd.h>

namespace quillmark {
namespace {

constexpr auto addressVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr int authenticationTimeoutMs = 2500;

/// Whether the bus accepts the connection but does not answer in time, not even to
/// authenticate this process.
bool isSilent(const std::string& address) {
  DBusConnection* const bus = dbus_connection_open_private(address.c_str(), nullptr);
  if (bus == nullptr) {
    return false;
  }
  const auto isWaiting = [bus] {
    return dbus_connection_get_is_connected(bus) != FALSE &&
           dbus_connection_get_is_authenticated(bus) == FALSE;
  };
  const QDeadlineTimer deadline(authenticationTimeoutMs);
  while (isWaiting() && !deadline.hasExpired()) {
    dbus_connection_read_write(bus, static_cast<int>(deadline.remainingTime()));
  }
  const bool isStillWaiting = isWaiting();
  dbus_connection_close(bus);
  dbus_connection_unref(bus);
  return isStillWaiting;
}

}  // namespace

std::string sessionBusAddress() {
  auto address = qgetenv(addressVariable).toStdString();
  const auto socket = qgetenv("XDG_RUNTIME_DIR").toStdString() + "/bus";
  if (address.empty() && access(socket.c_str(), F_OK) == 0) {
    address = "unix:path=" + socket;
  }
  return address;
}

void avoidSilentSessionBus() {
  const auto address = sessionBusAddress();
  if (!address.empty() && isSilent(address)) {
    // No library knows a transport of this name, so connecting fails at once.
    qputenv(addressVariable, "disabled:");
  }
}

}  // namespace quillmark
