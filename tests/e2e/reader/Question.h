// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
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

inline QVariant first(const QDBusPendingCall& answered) {
  return answered.reply().arguments().value(0);
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

/// The requests about one node, all of them sent before the first answer is read: its
/// states, children and role, as far as they are not known, and what else is wanted.
class Question final {
 public:
  struct Wanted {
    bool name = false;
    bool box = false;
  };

  Question(const QDBusConnection& bus, const Node& node, const Roles& roles, Wanted wanted)
      : node_(node), states_(node.ask(bus, accessible, "GetState")) {
    if (wanted.name) {
      name_ = node.ask(bus, "org.freedesktop.DBus.Properties", "Get",
                       {QLatin1String(accessible), QStringLiteral("Name")});
    }
    if (wanted.box) {
      box_ = node.ask(bus, "org.a11y.atspi.Component", "GetExtents", {0U});
    }
    if (!roles.find(node)) {
      role_ = node.ask(bus, accessible, "GetRole");
    }
    if (!roles.isText(node)) {
      children_ = node.ask(bus, accessible, "GetChildren");
    }
  }

  /// Waits for the answers. False if the node was removed.
  [[nodiscard]] bool isAnswered(Roles& roles) {
    for (auto* asked : {&name_, &box_, &role_, &children_}) {
      if (*asked && !isAnswered(**asked)) {
        return false;
      }
    }
    if (!isAnswered(states_)) {
      return false;
    }
    if (role_) {
      roles.add(node_, static_cast<int>(first(*role_).toUInt()));
    }
    return true;
  }

  // The answers. What was not wanted is empty.

  [[nodiscard]] const Node& node() const { return node_; }

  [[nodiscard]] quint32 states() const {
    QList<quint32> states;
    first(states_).value<QDBusArgument>() >> states;
    return states.value(0);
  }

  [[nodiscard]] QString name() const {
    return name_ ? first(*name_).value<QDBusVariant>().variant().toString() : QString();
  }

  /// Without children.
  [[nodiscard]] QJsonObject json(const Roles& roles) const {
    QRect box;
    if (box_) {
      first(*box_).value<QDBusArgument>() >> box;
    }
    return {{"role", *roles.find(node_)},
            {"name", name()},
            {"states", static_cast<qint64>(states())},
            {"box", QJsonArray{box.x(), box.y(), box.width(), box.height()}},
            {"address", QJsonArray{node_.bus, node_.path}},
            {"children", QJsonArray{}}};
  }

  /// None of a hidden object or a text.
  [[nodiscard]] std::vector<Node> children() const {
    std::vector<Node> nodes;
    if (!children_ || (states() & showing) == 0) {
      return nodes;
    }
    const auto list = first(*children_).value<QDBusArgument>();
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

 private:
  static bool isAnswered(QDBusPendingCall& asked) {
    asked.waitForFinished();
    return !asked.isError();
  }

  Node node_;
  QDBusPendingCall states_;
  std::optional<QDBusPendingCall> name_;
  std::optional<QDBusPendingCall> box_;
  std::optional<QDBusPendingCall> role_;
  std::optional<QDBusPendingCall> children_;
};

}  // namespace reader
