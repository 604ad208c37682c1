// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QRect>
#include <QString>

/// What is asked about single objects of the accessibility tree.
namespace reader {

// The accessibility protocol's numbers of states and roles.
inline constexpr quint32 focused = 1U << 12U;
inline constexpr quint32 showing = 1U << 25U;

inline constexpr int label = 29;
inline constexpr int static_text = 116;

inline constexpr auto accessible = "org.a11y.atspi.Accessible";

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
inline bool isAnswered(QDBusPendingCall& asked) {
  asked.waitForFinished();
  return !asked.isError();
}

inline QVariant first(const QDBusPendingCall& answered) {
  return answered.reply().arguments().value(0);
}

inline quint32 statesIn(const QDBusPendingCall& answered) {
  QList<quint32> states;
  first(answered).value<QDBusArgument>() >> states;
  return states.value(0);
}

/// None for a hidden object.
inline std::vector<Node> childrenIn(const QDBusPendingCall& answered, quint32 states) {
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

}  // namespace reader
