// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// accessible_tree BUS_ADDRESS
//
// For each line "tree BUS_NAME OBJECT_PATH" of the input: the tree below that
// object as assistive technology sees it, as one line of JSON. For each line
// "focus BUS_NAME OBJECT_PATH": the focused objects in that tree, innermost last,
// without their children. An empty line if part of the tree was removed meanwhile.
// Children of hidden objects are not read, and texts have no children.
// Each D-Bus call needs three processes, so roles, which never change, are read once
// per object. In C++, because reading trees in Python took most of a test's time.

#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

namespace {

// The accessibility protocol's numbers of states and roles.
constexpr quint32 focused = 1U << 12U;
constexpr quint32 showing = 1U << 25U;

constexpr int label = 29;
constexpr int static_text = 116;

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

/// Waits for the answer. False if there is none.
bool isAnswered(QDBusPendingCall& asked) {
  asked.waitForFinished();
  return !asked.isError();
}

QVariant first(const QDBusPendingCall& answered) { return answered.reply().arguments().value(0); }

quint32 statesIn(const QDBusPendingCall& answered) {
  QList<quint32> states;
  first(answered).value<QDBusArgument>() >> states;
  return states.value(0);
}

/// None for a hidden object.
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

/// The roles of the objects seen so far. The role of an object never changes.
class Roles final {
 public:
  [[nodiscard]] std::optional<int> find(const Node& node) const {
    const auto known = roles_.constFind(node.path);
    return known == roles_.cend() ? std::nullopt : std::optional(*known);
  }

  [[nodiscard]] bool isText(const Node& node) const {
    const auto role = find(node);
    return role == label || role == static_text;
  }

  void add(const Node& node, int role) { roles_.insert(node.path, role); }

 private:
  QHash<QString, int> roles_;
};

/// The requests about one node, all of them sent before the first answer is read.
class WholeNode final {
 public:
  WholeNode(const QDBusConnection& bus, const Node& node, const Roles& roles)
      : node_(node),
        name_(node.ask(bus, "org.freedesktop.DBus.Properties", "Get",
                       {QLatin1String(accessible), QStringLiteral("Name")})),
        states_(node.ask(bus, accessible, "GetState")),
        box_(node.ask(bus, "org.a11y.atspi.Component", "GetExtents", {0U})) {
    if (!roles.find(node)) {
      role_ = node.ask(bus, accessible, "GetRole");
    }
    if (!roles.isText(node)) {
      children_ = node.ask(bus, accessible, "GetChildren");
    }
  }

  /// False if the node was removed.
  [[nodiscard]] bool answer(Roles& roles, QJsonObject& json, std::vector<Node>& below) {
    if (!isAnswered(name_) || !isAnswered(states_) || !isAnswered(box_) ||
        (role_ && !isAnswered(*role_)) || (children_ && !isAnswered(*children_))) {
      return false;
    }
    if (role_) {
      roles.add(node_, static_cast<int>(first(*role_).toUInt()));
    }
    const auto states = statesIn(states_);
    QRect box;
    first(box_).value<QDBusArgument>() >> box;
    json = {{"role", *roles.find(node_)},
            {"name", first(name_).value<QDBusVariant>().variant().toString()},
            {"states", static_cast<qint64>(states)},
            {"box", QJsonArray{box.x(), box.y(), box.width(), box.height()}},
            {"address", QJsonArray{node_.bus, node_.path}},
            {"children", QJsonArray{}}};
    if (children_) {
      below = childrenIn(*children_, states);
    }
    return true;
  }

 private:
  Node node_;
  QDBusPendingCall name_;
  QDBusPendingCall states_;
  QDBusPendingCall box_;
  std::optional<QDBusPendingCall> role_;
  std::optional<QDBusPendingCall> children_;
};

class Reader final {
 public:
  explicit Reader(const QString& address)
      : bus_(QDBusConnection::connectToBus(address, "accessible")) {}

  /// The node with everything below it. Empty if part of it was removed.
  [[nodiscard]] QJsonDocument readTree(const Node& root) {
    std::vector<Level> levels(1);
    levels.front().nodes = {root};
    // One level after the other needs far fewer waits than one node after the other.
    while (!levels.back().nodes.empty()) {
      Level below;
      if (!readLevel(levels.back(), below)) {
        return {};
      }
      levels.push_back(std::move(below));
    }
    return QJsonDocument(joined(levels));
  }

  /// The focused ones among the node and everything below it, without their children.
  /// Empty if one was removed.
  [[nodiscard]] QJsonDocument findFocus(const Node& root) {
    QJsonArray found;
    for (std::vector<Node> nodes{root}; !nodes.empty();) {
      std::vector<std::pair<QDBusPendingCall, QDBusPendingCall>> asked;
      asked.reserve(nodes.size());
      for (const auto& node : nodes) {
        asked.emplace_back(node.ask(bus_, accessible, "GetState"),
                           node.ask(bus_, accessible, "GetChildren"));
      }
      std::vector<Node> below;
      for (std::size_t i = 0; i < nodes.size(); ++i) {
        auto& [state, children] = asked[i];
        if (!isAnswered(state) || !isAnswered(children)) {
          return {};
        }
        const auto states = statesIn(state);
        if ((states & focused) != 0) {
          QJsonObject json;
          std::vector<Node> unused;
          if (!WholeNode(bus_, nodes[i], roles_).answer(roles_, json, unused)) {
            return {};
          }
          found.append(json);
        }
        for (auto& child : childrenIn(children, states)) {
          if (!roles_.isText(child)) {
            below.push_back(std::move(child));
          }
        }
      }
      nodes = std::move(below);
    }
    return QJsonDocument(found);
  }

 private:
  /// The nodes at one depth, in order, and what they answered.
  struct Level {
    std::vector<Node> nodes;
    std::vector<std::size_t> parents;
    std::vector<QJsonObject> answers;
  };

  /// False if a node was removed.
  [[nodiscard]] bool readLevel(Level& level, Level& below) {
    std::vector<WholeNode> asked;
    asked.reserve(level.nodes.size());
    for (const auto& node : level.nodes) {
      asked.emplace_back(bus_, node, roles_);
    }
    for (auto& node : asked) {
      QJsonObject json;
      std::vector<Node> children;
      if (!node.answer(roles_, json, children)) {
        return false;
      }
      below.parents.insert(below.parents.end(), children.size(), level.answers.size());
      below.nodes.insert(below.nodes.end(), children.begin(), children.end());
      level.answers.push_back(json);
    }
    return true;
  }

  /// The answers of all levels as one tree. The last level is empty.
  static QJsonObject joined(std::vector<Level>& levels) {
    for (auto depth = levels.size() - 1; depth > 0; --depth) {
      std::vector<QJsonArray> children(levels[depth - 1].nodes.size());
      for (std::size_t i = 0; i < levels[depth].nodes.size(); ++i) {
        children[levels[depth].parents[i]].append(levels[depth].answers[i]);
      }
      for (std::size_t i = 0; i < children.size(); ++i) {
        levels[depth - 1].answers[i].insert("children", children[i]);
      }
    }
    return levels.front().answers.front();
  }

  QDBusConnection bus_;
  Roles roles_;
};

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  Reader reader(application.arguments().value(1));
  std::string wanted;
  std::string name;
  std::string path;
  while (std::cin >> wanted >> name >> path) {
    const Node root{QString::fromStdString(name), QString::fromStdString(path)};
    const auto json = wanted == "focus" ? reader.findFocus(root) : reader.readTree(root);
    std::cout << json.toJson(QJsonDocument::Compact).toStdString() << std::endl;
  }
}
