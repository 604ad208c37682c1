// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// accessible_tree BUS_ADDRESS
//
// For each line "tree BUS_NAME OBJECT_PATH" of the input: the tree below that
// object as assistive technology sees it, as one line of JSON. For each line
// "focus BUS_NAME OBJECT_PATH": what has the focus in that tree, innermost last,
// without what lies below it. An empty line if part of the tree went away
// meanwhile. What lies below something hidden is not read. In C++, because most of
// a test's time went into doing this in Python.

#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

namespace {

// As the accessibility protocol numbers states.
constexpr quint32 focused = 1U << 12U;
constexpr quint32 showing = 1U << 25U;

constexpr auto accessible = "org.a11y.atspi.Accessible";

struct Node {
  QString bus;
  QString path;

  [[nodiscard]] QDBusPendingCall ask(const QDBusConnection& connection, const char* interface,
                                     const char* method, const QVariantList& arguments = {}) const {
    auto message =
        QDBusMessage::createMethodCall(bus, path, QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return connection.asyncCall(message);
  }
};

/// Waits for the answers. False if there is one missing.
bool areAnswered(std::initializer_list<QDBusPendingCall*> questions) {
  return std::all_of(questions.begin(), questions.end(), [](auto* pending) {
    pending->waitForFinished();
    return !pending->isError();
  });
}

QVariant first(const QDBusPendingCall& answered) { return answered.reply().arguments().value(0); }

quint32 statesIn(const QDBusPendingCall& answered) {
  QList<quint32> states;
  first(answered).value<QDBusArgument>() >> states;
  return states.value(0);
}

/// None below something hidden.
std::vector<Node> childrenIn(const QDBusPendingCall& answered, quint32 states) {
  std::vector<Node> nodes;
  if ((states & showing) == 0) {
    return nodes;
  }
  const auto list = first(answered).value<QDBusArgument>();
  list.beginArray();
  while (!list.atEnd()) {
    Node node;
    QDBusObjectPath path;
    list.beginStructure();
    list >> node.bus >> path;
    list.endStructure();
    node.path = path.path();
    nodes.push_back(node);
  }
  list.endArray();
  return nodes;
}

/// What is asked about a node of a tree, all of it before the first answer is there.
class WholeNode final {
 public:
  WholeNode(const QDBusConnection& bus, const Node& node)
      : node_(node),
        role_(node.ask(bus, accessible, "GetRole")),
        name_(node.ask(bus, "org.freedesktop.DBus.Properties", "Get",
                       {QLatin1String(accessible), QStringLiteral("Name")})),
        states_(node.ask(bus, accessible, "GetState")),
        box_(node.ask(bus, "org.a11y.atspi.Component", "GetExtents", {0U})),
        children_(node.ask(bus, accessible, "GetChildren")) {}

  /// False if the node is gone.
  [[nodiscard]] bool answer(QJsonObject& told, std::vector<Node>& below) {
    if (!areAnswered({&role_, &name_, &states_, &box_, &children_})) {
      return false;
    }
    const auto states = statesIn(states_);
    QRect box;
    first(box_).value<QDBusArgument>() >> box;
    told = {{"role", static_cast<int>(first(role_).toUInt())},
            {"name", first(name_).value<QDBusVariant>().variant().toString()},
            {"states", static_cast<qint64>(states)},
            {"box", QJsonArray{box.x(), box.y(), box.width(), box.height()}},
            {"address", QJsonArray{node_.bus, node_.path}},
            {"children", QJsonArray{}}};
    below = childrenIn(children_, states);
    return true;
  }

 private:
  Node node_;
  QDBusPendingCall role_;
  QDBusPendingCall name_;
  QDBusPendingCall states_;
  QDBusPendingCall box_;
  QDBusPendingCall children_;
};

/// The nodes with all that is below them, in their order. False if one is gone.
bool readTrees(const QDBusConnection& bus, const std::vector<Node>& nodes, QJsonArray& trees) {
  std::vector<WholeNode> asked;
  asked.reserve(nodes.size());
  for (const auto& node : nodes) {
    asked.emplace_back(bus, node);
  }
  for (auto& node : asked) {
    QJsonObject told;
    std::vector<Node> below;
    QJsonArray children;
    if (!node.answer(told, below) || !readTrees(bus, below, children)) {
      return false;
    }
    told.insert("children", children);
    trees.append(told);
  }
  return true;
}

/// Those of the nodes, and of what is below them, that have the focus. False if one
/// is gone.
bool findFocus(const QDBusConnection& bus, const std::vector<Node>& nodes, QJsonArray& found) {
  std::vector<std::pair<QDBusPendingCall, QDBusPendingCall>> asked;
  asked.reserve(nodes.size());
  for (const auto& node : nodes) {
    asked.emplace_back(node.ask(bus, accessible, "GetState"),
                       node.ask(bus, accessible, "GetChildren"));
  }
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (!areAnswered({&asked[i].first, &asked[i].second})) {
      return false;
    }
    const auto states = statesIn(asked[i].first);
    if ((states & focused) != 0) {
      QJsonObject told;
      std::vector<Node> below;
      if (!WholeNode(bus, nodes[i]).answer(told, below)) {
        return false;
      }
      found.append(told);
    }
    if (!findFocus(bus, childrenIn(asked[i].second, states), found)) {
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const auto bus = QDBusConnection::connectToBus(application.arguments().value(1), "accessible");
  std::string wanted;
  std::string name;
  std::string path;
  while (std::cin >> wanted >> name >> path) {
    const std::vector<Node> root{{QString::fromStdString(name), QString::fromStdString(path)}};
    const auto read = wanted == "focus" ? findFocus : readTrees;
    QJsonArray told;
    if (read(bus, root, told)) {
      std::cout << QJsonDocument(told).toJson(QJsonDocument::Compact).toStdString();
    }
    std::cout << std::endl;
  }
}
