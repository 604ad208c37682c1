// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "model/Field.h"
#include "platform/Uuid.h"

namespace quillmark {

/// One installed application; an element of `InventoryData::apps`.
struct InstalledApp {
  std::string name;
  std::optional<std::string> version;    ///< shown with a leading "v"
  std::optional<std::string> publisher;  ///< who made or maintains it
  std::optional<std::string> path;       ///< where it is installed

  static constexpr auto fields =
      std::tuple{Field{"name", &InstalledApp::name}, Field{"version", &InstalledApp::version},
                 Field{"publisher", &InstalledApp::publisher}, Field{"path", &InstalledApp::path}};

  /// A new random id at every call, never stored: a record has no identity. The panel does
  /// not use it. Any thread.
  [[nodiscard]] Uuid id() const { return randomUuid(); }

  friend bool operator==(const InstalledApp&, const InstalledApp&) = default;
};

}  // namespace quillmark
