// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/qml/TestBackend.h"

#include <utility>

#include <QCoreApplication>
#include <QTimer>

#include "support/Bodies.h"
#include "support/TokenFiles.h"

namespace quillmark::test {

TestBackend::TestBackend(QObject* parent) : QObject(parent), answers_(goodAnswers()) {
  writeFile(systemTokenPath(), "secret\n");
  backend_.emplace([this](const ReceivedRequest& request, Connection& connection) {
    std::string answer;
    {
      const std::lock_guard lock(mutex_);
      answer = answers_[request.target()];
    }
    connection.send(answer);
  });
}

TestBackend::~TestBackend() { removeTokens(); }

void TestBackend::answer(const QString& target, const QString& body) {
  set(target, okAnswer(body.toStdString()));
}

void TestBackend::fail(const QString& target) {
  set(target, test::answer("500 Internal Server Error", "{}"));
}

void TestBackend::recover() {
  const std::lock_guard lock(mutex_);
  answers_ = goodAnswers();
}

QStringList TestBackend::requests() const {
  QStringList targets;
  for (const auto& request : backend_->requests()) {
    targets.append(QString::fromStdString(request.target()));
  }
  return targets;
}

QString TestBackend::connectionsBody(int count, const QString& state) {
  return QString::fromStdString(networkBodyOf(count, state.toStdString()));
}

void TestBackend::endTimers() { qDeleteAll(QCoreApplication::instance()->findChildren<QTimer*>()); }

void TestBackend::set(const QString& target, std::string answer) {
  const std::lock_guard lock(mutex_);
  answers_[target.toStdString()] = std::move(answer);
}

}  // namespace quillmark::test
