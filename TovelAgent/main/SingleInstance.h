// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace quillmark {

/// One panel per session: the first owns the application's name on the session
/// bus, and later launches hand over to it there. Without a bus each launch opens a
/// panel. UI thread only.
class SingleInstance final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  inline static const QString applicationId = QStringLiteral("org.quillmark.Agent");

  /// True if a running panel has taken over this launch. Otherwise this process listens for
  /// later launches, if the name was free.
  [[nodiscard]] bool handOverOrListen();

  /// Asks the session's panel to end. False if there is none, or if it does not
  /// answer. Does not start one.
  [[nodiscard]] static bool quitRunning();

 public Q_SLOTS:
  // The methods of org.freedesktop.Application; their names are part of it.
  Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
  Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
  Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                   const QVariantMap& platformData);

 Q_SIGNALS:
  /// Another launch asks the panel to come forward.
  void activated();

  /// Another process asks the panel to end.
  void quitRequested();
};

}  // namespace quillmark
