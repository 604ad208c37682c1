// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/SessionBus.h"

#include <memory>

#include <dbus/dbus.h>
#include <QDeadlineTimer>

#include <unistd.h>

namespace quillmark {
namespace {

constexpr auto addressVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr int silenceMs = 2500;

struct Destroyer {
  void operator()(DBusMessage* message) const { dbus_message_unref(message); }
  void operator()(DBusPendingCall* call) const { dbus_pending_call_unref(call); }
  void operator()(DBusConnection* bus) const {
    dbus_connection_close(bus);
    dbus_connection_unref(bus);
  }
};
using Message = std::unique_ptr<DBusMessage, Destroyer>;
using PendingCall = std::unique_ptr<DBusPendingCall, Destroyer>;
using Connection = std::unique_ptr<DBusConnection, Destroyer>;

/// Whether neither an answer to the call comes in time nor an error.
bool isSilentAbout(const Message& call, DBusConnection* bus, const QDeadlineTimer& deadline) {
  DBusPendingCall* sent = nullptr;
  dbus_connection_send_with_reply(bus, call.get(), &sent, DBUS_TIMEOUT_INFINITE);
  const PendingCall answer(sent);
  const auto isWaiting = [&] {
    return answer && dbus_connection_get_is_connected(bus) != FALSE &&
           dbus_pending_call_get_completed(answer.get()) == FALSE;
  };
  while (isWaiting() && !deadline.hasExpired()) {
    dbus_connection_read_write_dispatch(bus, static_cast<int>(deadline.remainingTime()));
  }
  return isWaiting();
}

Message hello() {
  return Message(dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS,
                                              DBUS_INTERFACE_DBUS, "Hello"));
}

/// What Qt asks for when it is set up.
Message isAccessibilityEnabled() {
  Message call(dbus_message_new_method_call("org.a11y.Bus", "/org/a11y/bus",
                                            DBUS_INTERFACE_PROPERTIES, "Get"));
  const auto* interface = "org.a11y.Status";
  const auto* property = "IsEnabled";
  dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                           DBUS_TYPE_INVALID);
  dbus_message_set_auto_start(call.get(), FALSE);
  return call;
}

/// Whether the bus, or the accessibility service on it, accepts messages but does not answer.
bool isSilent(const std::string& address) {
  const Connection bus(dbus_connection_open_private(address.c_str(), nullptr));
  const QDeadlineTimer deadline(silenceMs);
  return bus && (isSilentAbout(hello(), bus.get(), deadline) ||
                 isSilentAbout(isAccessibilityEnabled(), bus.get(), deadline));
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
