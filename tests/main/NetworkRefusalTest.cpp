// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "main/ViewEngine.h"
#include "support/Backend.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

/// Views that would fetch something, and a server that would notice it.
class NetworkRefusalTest : public testing::Test {
 protected:
  /// The object that `source` creates; its property `outcome` has the result.
  QObject* build(const QByteArray& source) {
    QQmlComponent component(&engine_);
    component.setData(source, QUrl());
    root_.reset(component.create());
    EXPECT_NE(root_, nullptr) << component.errorString().toStdString();
    return root_.get();
  }

  QString outcomeOf(const QByteArray& source) {
    auto* const root = build(source);
    EXPECT_TRUE(waitUntil([&] { return !root->property("outcome").toString().isEmpty(); }));
    return root->property("outcome").toString();
  }

  const Backend backend_{[](const ReceivedRequest&, Connection& connection) {
    connection.send(okAnswer("import QtQuick\nItem {}"));
  }};
  // Refused requests cause warnings, which this test does not check.
  KeptWarnings warnings_;
  QQmlEngine engine_;

 private:
  std::unique_ptr<QObject> root_;
};

constexpr auto requestSource = R"(
    import QtQml
    QtObject {
      property string outcome
      Component.onCompleted: {
        const request = new XMLHttpRequest();
        request.onreadystatechange = () => {
          if (request.readyState === XMLHttpRequest.DONE)
            outcome = "status " + request.status + ", " + request.responseText.length + " bytes";
        };
        request.open("GET", "http://127.0.0.1:7823/request");
        request.send();
      }
    })";

// Shows that the test would notice a fetch.
TEST_F(NetworkRefusalTest, AnotherEngineFetches) {
  EXPECT_EQ(outcomeOf(requestSource), QStringLiteral("status 200, 22 bytes"));
  EXPECT_EQ(backend_.connections(), 1);
}

TEST_F(NetworkRefusalTest, ScriptsFetchNothing) {
  prepareForViews(engine_);
  EXPECT_EQ(outcomeOf(requestSource), QStringLiteral("status 0, 0 bytes"));
  EXPECT_EQ(backend_.connections(), 0);
}

TEST_F(NetworkRefusalTest, PicturesFetchNothing) {
  prepareForViews(engine_);
  EXPECT_EQ(outcomeOf(R"(
      import QtQuick
      Image {
        property string outcome: status === Image.Ready || status === Image.Error ? "status " + status : ""
        source: "http://127.0.0.1:7823/picture.png"
      })"),
            QStringLiteral("status 3"));
  EXPECT_EQ(backend_.connections(), 0);
}

TEST_F(NetworkRefusalTest, ViewsAreNotFetched) {
  prepareForViews(engine_);
  EXPECT_EQ(outcomeOf(R"(
      import QtQuick
      Loader {
        property string outcome: status === Loader.Ready || status === Loader.Error ? "status " + status : ""
        source: "http://127.0.0.1:7823/View.qml"
      })"),
            QStringLiteral("status 3"));
  EXPECT_EQ(backend_.connections(), 0);
}

TEST_F(NetworkRefusalTest, RichTextFetchesNothing) {
  prepareForViews(engine_);
  auto* const window = qobject_cast<QQuickWindow*>(build(R"(
      import QtQuick
      import QtQuick.Window
      Window {
        width: 200
        height: 200
        visible: true
        Text { textFormat: Text.RichText; text: '<img src="http://127.0.0.1:7823/rich.png">' }
        Text { textFormat: Text.StyledText; text: '<img src="http://127.0.0.1:7823/styled.png">' }
      })"));
  ASSERT_TRUE(waitUntil([&] { return window->isExposed(); }));
  static_cast<void>(window->grabWindow());
  // Whatever was to be fetched would have failed by now.
  ASSERT_TRUE(waitUntil([this] { return !warnings_.texts().isEmpty(); }));
  EXPECT_EQ(backend_.connections(), 0);
}

TEST_F(NetworkRefusalTest, EveryRequestFails) {
  prepareForViews(engine_);
  auto* const manager = engine_.networkAccessManager();
  for (const auto* const url : {"http://127.0.0.1:7823/", "https://127.0.0.1:7823/",
                                "ftp://127.0.0.1:7823/", "file:///etc/hostname"}) {
    const std::unique_ptr<QNetworkReply> reply(
        manager->get(QNetworkRequest(QUrl(QString::fromLatin1(url)))));
    ASSERT_TRUE(waitUntil([&] { return reply->isFinished(); })) << url;
    EXPECT_NE(reply->error(), QNetworkReply::NoError) << url;
    EXPECT_TRUE(reply->readAll().isEmpty()) << url;
  }
  EXPECT_EQ(backend_.connections(), 0);
}

}  // namespace
}  // namespace quillmark::test
