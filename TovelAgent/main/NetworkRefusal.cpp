// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/NetworkRefusal.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>

namespace quillmark {
namespace {

class RefusingManager final : public QNetworkAccessManager {
 public:
  using QNetworkAccessManager::QNetworkAccessManager;

 protected:
  QNetworkReply* createRequest(Operation, const QNetworkRequest&, QIODevice*) override {
    // A request without a URL fails without using the network.
    return QNetworkAccessManager::createRequest(GetOperation, QNetworkRequest());
  }
};

}  // namespace

QNetworkAccessManager* NetworkRefusal::create(QObject* parent) {
  return new RefusingManager(parent);
}

}  // namespace quillmark
