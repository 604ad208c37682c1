// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlNetworkAccessManagerFactory>

namespace quillmark {

/// Makes every request of the QML engine fail, so that no text or file can make a
/// view fetch anything. The engine calls it from any thread.
class NetworkRefusal final : public QQmlNetworkAccessManagerFactory {
 public:
  [[nodiscard]] QNetworkAccessManager* create(QObject* parent) override;
};

}  // namespace quillmark
