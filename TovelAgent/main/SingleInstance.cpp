// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>

namespace quillmark {
namespace {

constexpr int answerTimeoutMs = 3000;

const auto objectPath = QStringLiteral("/org/quillmark/Agent");
const auto interfaceName = QStringLiteral("org.freedesktop.Application");
/// As the desktop entry names it.
const auto quitAction = QStringLiteral("quit");
const auto activationToken = QStringLiteral("activation-token");
constexpr auto activationVariable = "XDG_ACTIVATION_TOKEN";

/// Asking for a bus where there is none would start one.
bool hasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// A call to the panel that holds the name; never a reason to start one.
QDBusMessage callTo(const QString& method) {
  auto call = QDBusMessage::createMethodCall(SingleInstance::applicationId, objectPath,
                                             interfaceName, method);
  call.setAutoStartService(false);
  return call;
}

bool isAnswered(const QDBusConnection& bus, const QDBusMessage& call) {
  return bus.call(call, QDBus::Block, answerTimeoutMs).type() == QDBusMessage::ReplyMessage;
}

}  // namespace

bool SingleInstance::handOver() {
  if (!hasSessionBus()) {
    return false;
  }
  auto bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    return false;
  }
  bus.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
  if (bus.registerService(applicationId)) {
    return false;
  }
  auto activate = callTo(QStringLiteral("Activate"));
  activate << QVariantMap{{activationToken, qEnvironmentVariable(activationVariable)}};
  return isAnswered(bus, activate);
}

bool SingleInstance::quitRunning() {
  if (!hasSessionBus()) {
    return false;
  }
  const auto bus = QDBusConnection::sessionBus();
  auto quit = callTo(QStringLiteral("ActivateAction"));
  quit << quitAction << QVariantList{} << QVariantMap{};
  return bus.isConnected() && isAnswered(bus, quit);
}

void SingleInstance::Activate(const QVariantMap& platformData) {
  // Leave from the desktop to take the focus, passed on by the other launch.
  const auto token = platformData.value(activationToken).toByteArray();
  if (!token.isEmpty()) {
    qputenv(activationVariable, token);
  }
  Q_EMIT activated();
}

void SingleInstance::Open(const QStringList& /*uris*/, const QVariantMap& platformData) {
  Activate(platformData);
}

void SingleInstance::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                    const QVariantMap& platformData) {
  if (action == quitAction) {
    Q_EMIT quitAsked();
    return;
  }
  Activate(platformData);
}

}  // namespace quillmark
