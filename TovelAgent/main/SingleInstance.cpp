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
const auto activationToken = QStringLiteral("activation-token");
constexpr auto activationVariable = "XDG_ACTIVATION_TOKEN";

/// Asking for a bus where there is none would start one.
bool hasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
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
  auto activate = QDBusMessage::createMethodCall(applicationId, objectPath, interfaceName,
                                                 QStringLiteral("Activate"));
  activate << QVariantMap{{activationToken, qEnvironmentVariable(activationVariable)}};
  return bus.call(activate, QDBus::Block, answerTimeoutMs).type() == QDBusMessage::ReplyMessage;
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

void SingleInstance::ActivateAction(const QString& /*action*/, const QVariantList& /*parameter*/,
                                    const QVariantMap& platformData) {
  Activate(platformData);
}

}  // namespace quillmark
