// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlNetworkAccessManagerFactory>

namespace quillmark {

/// Gives the QML engine a network that refuses everything: no text or file
/// may make a view fetch anything. The engine calls it from its own threads.
class NetworkRefusal final : public QQmlNetworkAccessManagerFactory {
 public:
  [[nodiscard]] QNetworkAccessManager* create(QObject* parent) override;
};

}  // namespace quillmark
