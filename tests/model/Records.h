// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include "model/Codec.h"

namespace quillmark::test {

using AllRecords = testing::Types<AgentStatus, ThreatAlert, NetworkConnection, InstalledApp,
                                  InventoryData, AlertsResponse, NetworkResponse>;

/// Names the cases of a typed test by the record.
struct RecordNames {
  template <class R>
  static std::string GetName(int) {
    return std::string(nameOf(static_cast<R*>(nullptr)));
  }

 private:
  static std::string_view nameOf(AgentStatus*) { return "AgentStatus"; }
  static std::string_view nameOf(ThreatAlert*) { return "ThreatAlert"; }
  static std::string_view nameOf(NetworkConnection*) { return "NetworkConnection"; }
  static std::string_view nameOf(InstalledApp*) { return "InstalledApp"; }
  static std::string_view nameOf(InventoryData*) { return "InventoryData"; }
  static std::string_view nameOf(AlertsResponse*) { return "AlertsResponse"; }
  static std::string_view nameOf(NetworkResponse*) { return "NetworkResponse"; }
};

}  // namespace quillmark::test
