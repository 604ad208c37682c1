// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// accessible_tree BUS_ADDRESS
//
// Reads the tree of a program as assistive technology sees it. Each line of the input is
// a JSON object with the D-Bus name "bus" and the object path "path" of the root:
// {"read": "tree", ...}: that object with everything below it.
// {"read": "focus", ...}: the focused objects, innermost last, without their children.
// {"read": "find", "roles": [NUMBER, ...], "names": [TEXT, ...], ...}: the first object with
// one of these roles and names, with everything below it.
// Each answer is a line with a JSON list, or an empty line if part of the tree was removed
// meanwhile. Children of hidden objects are not read, and texts have no children.
// Each D-Bus call needs three processes, so as little as possible is asked. In C++, because
// reading trees in Python took most of a test's time.

#include <algorithm>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Question.h"

namespace {

using namespace reader;

class Reader final {
 public:
  explicit Reader(const QString& address)
      : bus_(QDBusConnection::connectToBus(address, "accessible")) {}

  /// What the methods below return is empty if part of the tree was removed.
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
    return QJsonDocument(QJsonArray{joined(levels)});
  }

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

  [[nodiscard]] QJsonDocument find(const Node& root, const QJsonArray& roles,
                                   const QJsonArray& names) {
    std::optional<Visited> found;
    for (std::vector<Visited> level{{root, {}}}; !level.empty();) {
      std::vector<Visited> below;
      if (!findNamed(level, roles, names, found, below)) {
        return {};
      }
      level = std::move(below);
    }
    return found ? readTree(found->node) : QJsonDocument(QJsonArray());
  }

 private:
  /// The nodes at one depth, in order, and what they answered.
  struct Level {
    std::vector<Node> nodes;
    std::vector<std::size_t> parents;
    std::vector<QJsonObject> answers;
  };

  /// A node, and which child it and each of its parents is: in the order of these numbers
  /// the objects of a tree are read aloud.
  struct Visited {
    Node node;
    std::vector<std::size_t> place;
  };

  /// Asks all before it waits for the first. False if a node was removed.
  template <class Nodes, class Ask, class Use>
  [[nodiscard]] bool forEachAnswer(const Nodes& nodes, const Ask& ask, const Use& use) {
    std::vector<Question> questions;
    questions.reserve(nodes.size());
    std::transform(nodes.begin(), nodes.end(), std::back_inserter(questions), ask);
    for (std::size_t i = 0; i < questions.size(); ++i) {
      if (!questions[i].isAnswered(roles_)) {
        return false;
      }
      use(questions[i], i);
    }
    return true;
  }

  /// Adds the focused ones among `nodes` to `found`, and their children except texts to
  /// `below`.
  [[nodiscard]] bool findFocused(const std::vector<Node>& nodes, std::vector<Node>& found,
                                 std::vector<Node>& below) {
    return forEachAnswer(
        nodes, [this](const Node& node) { return Question(bus_, node, roles_, {}); },
        [&](const Question& node, std::size_t) {
          if ((node.states() & focused) != 0) {
            found.push_back(node.node());
          }
          const auto all = node.children();
          std::copy_if(all.begin(), all.end(), std::back_inserter(below),
                       [this](const auto& child) { return !roles_.isText(child); });
        });
  }

  /// Replaces `found` if one of `nodes` is wanted and before it. Adds the children that can
  /// be before it to `below`.
  [[nodiscard]] bool findNamed(const std::vector<Visited>& nodes, const QJsonArray& roles,
                               const QJsonArray& names, std::optional<Visited>& found,
                               std::vector<Visited>& below) {
    const auto canBeWanted = [&](const Node& node) {
      const auto role = roles_.find(node);
      return !role || roles.contains(*role);
    };
    return forEachAnswer(
        nodes,
        [&](const Visited& visited) {
          return Question(bus_, visited.node, roles_, {canBeWanted(visited.node), false});
        },
        [&](const Question& node, std::size_t index) {
          const auto& visited = nodes[index];
          if (found && found->place < visited.place) {
            return;
          }
          if (canBeWanted(visited.node) && names.contains(node.name()) &&
              (node.states() & showing) != 0) {
            found = visited;
            return;
          }
          const auto children = node.children();
          for (std::size_t i = 0; i < children.size(); ++i) {
            if (!roles_.isText(children[i]) || canBeWanted(children[i])) {
              below.push_back({children[i], visited.place});
              below.back().place.push_back(i);
            }
          }
        });
  }

  [[nodiscard]] bool readLevel(Level& level, Level& below) {
    return forEachAnswer(
        level.nodes,
        [this](const Node& node) {
          return Question(bus_, node, roles_, {true, true});
        },
        [&](const Question& node, std::size_t index) {
          const auto children = node.children();
          below.parents.insert(below.parents.end(), children.size(), index);
          below.nodes.insert(below.nodes.end(), children.begin(), children.end());
          level.answers.push_back(node.json(roles_));
        });
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

QJsonDocument answer(Reader& reader, const QJsonDocument& wanted) {
  const Node root{wanted["bus"].toString(), wanted["path"].toString()};
  const auto what = wanted["read"].toString();
  if (what == "tree") {
    return reader.readTree(root);
  }
  if (what == "focus") {
    return reader.findFocus(root);
  }
  return reader.find(root, wanted["roles"].toArray(), wanted["names"].toArray());
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  Reader reader(application.arguments().value(1));
  for (std::string line; std::getline(std::cin, line);) {
    const auto json = answer(reader, QJsonDocument::fromJson(QByteArray::fromStdString(line)));
    std::cout << json.toJson(QJsonDocument::Compact).toStdString() << std::endl;
  }
}
