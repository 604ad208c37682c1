// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// accessible_tree BUS_ADDRESS
//
// For each line "BUS_NAME OBJECT_PATH" of the input: the tree below that object
// as assistive technology sees it, as one line of JSON; an empty line if part of
// it went away meanwhile. What lies below something hidden is not read. In C++,
// because most of a test's time went into doing this in Python.

#include <iostream>
#include <string>
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

constexpr quint32 showing = 1U << 25U;  // as the accessibility protocol numbers states

struct Node {
  QString bus;
  QString path;
};

/// What is asked about every node, all of it before the first answer is there.
class Questions final {
 public:
  Questions(const QDBusConnection& bus, const Node& node)
      : node_(node),
        role_(bus.asyncCall(call(accessible, "GetRole"))),
        name_(bus.asyncCall(call("org.freedesktop.DBus.Properties", "Get",
                                 {QLatin1String(accessible), QStringLiteral("Name")}))),
        states_(bus.asyncCall(call(accessible, "GetState"))),
        box_(bus.asyncCall(call("org.a11y.atspi.Component", "GetExtents", {0U}))),
        children_(bus.asyncCall(call(accessible, "GetChildren"))) {}

  /// False if the node is gone.
  [[nodiscard]] bool answer(QJsonObject& told, std::vector<Node>& below) {
    for (auto* const pending : {&role_, &name_, &states_, &box_, &children_}) {
      pending->waitForFinished();
      if (pending->isError()) {
        return false;
      }
    }
    QList<quint32> states;
    first(states_).value<QDBusArgument>() >> states;
    QRect box;
    first(box_).value<QDBusArgument>() >> box;
    told = {{"role", static_cast<int>(first(role_).toUInt())},
            {"name", first(name_).value<QDBusVariant>().variant().toString()},
            {"states", static_cast<qint64>(states.value(0))},
            {"box", QJsonArray{box.x(), box.y(), box.width(), box.height()}},
            {"address", QJsonArray{node_.bus, node_.path}}};
    if ((states.value(0) & showing) != 0) {
      below = childrenOf(first(children_).value<QDBusArgument>());
    }
    return true;
  }

 private:
  static constexpr auto accessible = "org.a11y.atspi.Accessible";

  [[nodiscard]] QDBusMessage call(const char* interface, const char* method,
                                  const QVariantList& arguments = {}) const {
    auto message = QDBusMessage::createMethodCall(node_.bus, node_.path, QLatin1String(interface),
                                                  QLatin1String(method));
    message.setArguments(arguments);
    return message;
  }

  static QVariant first(const QDBusPendingCall& answered) {
    return answered.reply().arguments().value(0);
  }

  static std::vector<Node> childrenOf(const QDBusArgument& list) {
    std::vector<Node> nodes;
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

  Node node_;
  QDBusPendingCall role_;
  QDBusPendingCall name_;
  QDBusPendingCall states_;
  QDBusPendingCall box_;
  QDBusPendingCall children_;
};

/// The nodes with all that is below them, in their order. False if one is gone.
bool read(const QDBusConnection& bus, const std::vector<Node>& nodes, QJsonArray& trees) {
  std::vector<Questions> asked;
  asked.reserve(nodes.size());
  for (const auto& node : nodes) {
    asked.emplace_back(bus, node);
  }
  for (auto& questions : asked) {
    QJsonObject told;
    std::vector<Node> below;
    QJsonArray children;
    if (!questions.answer(told, below) || !read(bus, below, children)) {
      return false;
    }
    told.insert("children", children);
    trees.append(told);
  }
  return true;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const auto bus = QDBusConnection::connectToBus(application.arguments().value(1), "accessible");
  std::string name;
  std::string path;
  while (std::cin >> name >> path) {
    QJsonArray trees;
    const bool whole =
        read(bus, {{QString::fromStdString(name), QString::fromStdString(path)}}, trees);
    if (whole) {
      std::cout << QJsonDocument(trees).toJson(QJsonDocument::Compact).toStdString();
    }
    std::cout << std::endl;
  }
}
