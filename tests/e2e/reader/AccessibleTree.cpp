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

#include <algorithm>
#include <iostream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "WholeNode.h"

namespace {

using namespace reader;

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
    Level found;
    for (std::vector<Node> nodes{root}; !nodes.empty();) {
      std::vector<Node> below;
      if (!findFocused(nodes, found.nodes, below)) {
        return {};
      }
      nodes = std::move(below);
    }
    Level unused;
    if (!readLevel(found, unused)) {
      return {};
    }
    QJsonArray focusedOnes;
    for (const auto& answer : found.answers) {
      focusedOnes.append(answer);
    }
    return QJsonDocument(focusedOnes);
  }

 private:
  /// The nodes at one depth, in order, and what they answered.
  struct Level {
    std::vector<Node> nodes;
    std::vector<std::size_t> parents;
    std::vector<QJsonObject> answers;
  };

  /// Adds the focused ones among `nodes` to `found`, and their children except texts to
  /// `below`. False if a node was removed.
  [[nodiscard]] bool findFocused(const std::vector<Node>& nodes, std::vector<Node>& found,
                                 std::vector<Node>& below) {
    std::vector<std::pair<QDBusPendingCall, QDBusPendingCall>> asked;
    asked.reserve(nodes.size());
    for (const auto& node : nodes) {
      asked.emplace_back(node.ask(bus_, accessible, "GetState"),
                         node.ask(bus_, accessible, "GetChildren"));
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      auto& [state, children] = asked[i];
      if (!isAnswered(state) || !isAnswered(children)) {
        return false;
      }
      const auto states = statesIn(state);
      if ((states & focused) != 0) {
        found.push_back(nodes[i]);
      }
      const auto all = childrenIn(children, states);
      std::copy_if(all.begin(), all.end(), std::back_inserter(below),
                   [this](const auto& child) { return !roles_.isText(child); });
    }
    return true;
  }

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
