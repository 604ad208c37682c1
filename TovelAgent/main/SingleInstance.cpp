// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/SingleInstance.h"

#include <dbus/dbus-shared.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDeadlineTimer>
#include <QThread>

#include "main/SessionBus.h"

namespace quillmark {
namespace {

constexpr int answerTimeoutMs = 3000;
// A panel that is still starting answers only when its window is there, which takes
// long on a slow machine.
constexpr int startTimeoutMs = 20000;
constexpr unsigned long pauseUs = 100;

const auto objectPath = QStringLiteral("/org/quillmark/Agent");
const auto interfaceName = QStringLiteral("org.freedesktop.Application");
/// As in the desktop entry.
const auto quitAction = QStringLiteral("quit");
const auto activationToken = QStringLiteral("activation-token");
constexpr auto activationVariable = "XDG_ACTIVATION_TOKEN";
// The tokens of desktops have about 40 bytes.
constexpr int maxActivationTokenBytes = 1024;

/// A call to the panel that owns the name; does not start one if there is none.
QDBusMessage callTo(const QString& method) {
  auto call = QDBusMessage::createMethodCall(SingleInstance::applicationId, objectPath,
                                             interfaceName, method);
  call.setAutoStartService(false);
  return call;
}

/// The reply, of any type; invalid if none arrives in time. Qt's own blocking call waits
/// forever if the bus is lost meanwhile. An event loop would deliver incoming calls too
/// early: nothing is connected to the signals of `SingleInstance` yet.
QDBusMessage answerTo(const QDBusMessage& call, const QDBusConnection& bus, int timeoutMs) {
  const auto pending = bus.asyncCall(call, timeoutMs);
  const QDeadlineTimer deadline(timeoutMs);
  while (!pending.isFinished() && bus.isConnected() && !deadline.hasExpired()) {
    QThread::usleep(pauseUs);
  }
  return pending.reply();
}

bool isAnswered(const QDBusMessage& call, const QDBusConnection& bus, int timeoutMs) {
  return answerTo(call, bus, timeoutMs).type() == QDBusMessage::ReplyMessage;
}

/// Not connected if there is no bus.
QDBusConnection sessionBus() {
  const bool exists = !sessionBusAddress().empty();
  return exists ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

/// Takes the application's name on the bus. False if another panel owns it; true also
/// if the bus does not answer.
bool claimName(const QDBusConnection& bus) {
  auto request = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
  request << SingleInstance::applicationId << uint{DBUS_NAME_FLAG_DO_NOT_QUEUE};
  return answerTo(request, bus, answerTimeoutMs).arguments().value(0).toUInt() !=
         DBUS_REQUEST_NAME_REPLY_EXISTS;
}

}  // namespace

bool SingleInstance::handOverOrListen() {
  auto bus = sessionBus();
  if (!bus.isConnected()) {
    return false;
  }
  bus.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
  if (claimName(bus)) {
    return false;
  }
  auto activate = callTo(QStringLiteral("Activate"));
  activate << QVariantMap{{activationToken, qEnvironmentVariable(activationVariable)}};
  return isAnswered(activate, bus, startTimeoutMs);
}

bool SingleInstance::quitRunning() {
  const auto bus = sessionBus();
  auto quit = callTo(QStringLiteral("ActivateAction"));
  quit << quitAction << QVariantList{} << QVariantMap{};
  return bus.isConnected() && isAnswered(quit, bus, answerTimeoutMs);
}

void SingleInstance::Activate(const QVariantMap& platformData) {
  // The desktop's permission to take the focus, passed on by the other launch.
  const auto token = platformData.value(activationToken).toByteArray();
  if (token.size() <= maxActivationTokenBytes) {
    qputenv(activationVariable, token);
  }
  Q_EMIT activated();
  // The token is valid only once, and programs that the panel starts would inherit it.
  qunsetenv(activationVariable);
}

void SingleInstance::Open(const QStringList& /*uris*/, const QVariantMap& platformData) {
  Activate(platformData);
}

void SingleInstance::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                    const QVariantMap& platformData) {
  if (action == quitAction) {
    Q_EMIT quitRequested();
    return;
  }
  Activate(platformData);
}

}  // namespace quillmark
