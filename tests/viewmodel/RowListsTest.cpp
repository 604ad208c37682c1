// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include "viewmodel/PollingTest.h"
#include "viewmodel/PrintQString.h"

namespace quillmark::test {
namespace {

/// The lists as views read them, after a poll.
class RowListsTest : public PollingTest {
 protected:
  template <class Presentation>
  static Presentation row(const ListModel& list, int number) {
    const int role = list.roleNames().cbegin().key();
    return list.data(list.index(number), role).template value<Presentation>();
  }

  /// The values of the dashboard's cards, separated by spaces.
  static QString cardValues(DashboardViewModel& model) {
    QStringList values;
    for (int i = 0; i < model.cardRows()->count(); ++i) {
      values.append(row<StatsCard>(*model.cardRows(), i).value);
    }
    return values.join(QLatin1Char(' '));
  }

  /// `{"<key>":[...],<rest>}` with `count` times `element`, in which "#" stands
  /// for the number.
  static std::string listBody(const std::string& key, int count, const std::string& element,
                              const std::string& rest = "") {
    std::string body = "{\"" + key + "\":[";
    for (int i = 0; i < count; ++i) {
      auto text = element;
      text.replace(text.find('#'), 1, std::to_string(i));
      body += (i == 0 ? "" : ",") + text;
    }
    return body + "]" + rest + "}";
  }
};

TEST_F(RowListsTest, ShowTheFirstHundredAlertsInOrder) {
  const Backend backend(goodAnswersBut(
      "/api/alerts",
      okAnswer(listBody("alerts", 150, R"({"alert_type":"type #","severity":"low"})"))));
  const auto model = makeModel();
  poll(*model);
  ASSERT_EQ(model->alertRows()->count(), 100);
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(row<AlertPresentation>(*model->alertRows(), i).alertType,
              QStringLiteral("type %1").arg(i));
  }
  EXPECT_EQ(model->alerts().size(), 150U);
  EXPECT_EQ(cardValues(*model), QStringLiteral("1 2 1 1 150"));
}

TEST_F(RowListsTest, ShowTheFirstFiftyApplicationsInOrder) {
  const Backend backend(goodAnswersBut(
      "/api/inventory",
      okAnswer(listBody("apps", 80, R"({"name":"app #"})",
                        R"(,"services":[],"network_interfaces":[],"permissions":["all"])"))));
  const auto model = makeModel();
  poll(*model);
  ASSERT_EQ(model->appRows()->count(), 50);
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(row<AppPresentation>(*model->appRows(), i).name, QStringLiteral("app %1").arg(i));
  }
  EXPECT_EQ(cardValues(*model), QStringLiteral("80 0 0 1 1"));
}

TEST_F(RowListsTest, ShowEveryConnection) {
  constexpr int count = 10000;
  const Backend backend(goodAnswersBut("/api/network", okAnswer(networkBodyOf(count))));
  const auto model = makeModel();
  poll(*model);
  ASSERT_EQ(model->connectionRows()->count(), count);
  EXPECT_EQ(row<ConnectionPresentation>(*model->connectionRows(), count - 1).localEndpoint,
            QStringLiteral("127.0.0.1:9999"));
  EXPECT_EQ(cardValues(*model), QStringLiteral("1 2 1 10000 1"));
}

TEST_F(RowListsTest, HoldTwoCardsOnlyWithoutAnInventory) {
  const auto model = makeModel();
  EXPECT_EQ(cardValues(*model), QStringLiteral("0 0"));
  {
    const Backend backend(goodAnswers());
    poll(*model);
    EXPECT_EQ(cardValues(*model), QStringLiteral("1 2 1 1 1"));
  }
  poll(*model);
  EXPECT_EQ(cardValues(*model), QStringLiteral("0 0"));
  EXPECT_EQ(row<StatsCard>(*model->cardRows(), 0).title,
            QStringLiteral("Active Network Connections"));
}

// Views redraw at each signal, and must not show values of two polls at once.
TEST_F(RowListsTest, TakeAllValuesOfAPollBeforeAnySignal) {
  const auto model = makeModel();
  auto* const cards = model->cardRows();
  QStringList announced;
  const auto note = [&] { announced.append(cardValues(*model)); };
  QObject::connect(cards, &ListModel::dataChanged, cards, note);
  QObject::connect(cards, &ListModel::rowsInserted, cards, note);
  QObject::connect(cards, &ListModel::rowsRemoved, cards, note);
  {
    const Backend backend(goodAnswers());
    poll(*model);
  }
  const auto good = QStringLiteral("1 2 1 1 1");
  EXPECT_EQ(announced, (QStringList{good, good}));
  announced.clear();
  poll(*model);
  const auto none = QStringLiteral("0 0");
  EXPECT_EQ(announced, (QStringList{none, none}));
}

// Fonts of many scripts are not opened all at once.
TEST_F(RowListsTest, GetTheRestOfManyScriptsSoonAfterThePoll) {
  const std::string text = "ա ב ت ☃ ა ລ";
  const Backend backend(goodAnswersBut("/api/alerts", okAnswer(R"({"alerts":[{"alert_type":")" +
                                                               text + R"(","severity":"low"}]})")));
  const auto model = makeModel();
  poll(*model);
  auto* const alerts = model->alertRows();
  const auto shown = [&] { return row<AlertPresentation>(*alerts, 0).alertType.toStdString(); };
  EXPECT_NE(shown(), text);
  // Like a view, which reads a row again only when the model says so.
  std::string lastShown;
  QObject::connect(alerts, &ListModel::dataChanged, alerts, [&] { lastShown = shown(); });
  EXPECT_TRUE(waitUntil([&] { return lastShown == text; })) << lastShown;
}

TEST_F(RowListsTest, DistinguishAnEmptyInventoryFromNone) {
  const Backend backend(goodAnswersBut(
      "/api/inventory",
      okAnswer(R"({"apps":[],"services":["cron"],"network_interfaces":[],"permissions":[]})")));
  const auto model = makeModel();
  EXPECT_FALSE(model->hasInventory());
  poll(*model);
  EXPECT_TRUE(model->hasInventory());
  EXPECT_EQ(model->appRows()->count(), 0);
}

}  // namespace
}  // namespace quillmark::test
