// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>
#include <string_view>

#include <simdjson.h>

#include "decode/Contenders.h"

namespace quillmark::bench {
namespace {

namespace dom = simdjson::dom;

std::string text(dom::object object, std::string_view key) {
  return std::string(object[key].get_string().value());
}

std::optional<std::string> optionalText(dom::object object, std::string_view key) {
  const auto found = object[key].get_string();
  return found.error() == simdjson::SUCCESS ? std::optional<std::string>(found.value_unsafe())
                                            : std::nullopt;
}

std::vector<std::string> texts(dom::array array) {
  std::vector<std::string> result;
  result.reserve(array.size());
  for (const dom::element element : array) {
    result.emplace_back(element.get_string().value());
  }
  return result;
}

}  // namespace

NetworkResponse connectionsBySimdjson(const std::string& body) {
  dom::parser parser;
  const dom::array array = parser.parse(body)["connections"];
  NetworkResponse result;
  result.connections.reserve(array.size());
  for (const dom::object connection : array) {
    result.connections.push_back(
        {text(connection, "protocol"), text(connection, "local_address"),
         text(connection, "local_port"), text(connection, "remote_address"),
         text(connection, "remote_port"), text(connection, "state"),
         optionalText(connection, "pid"), optionalText(connection, "risk_level")});
  }
  return result;
}

InventoryData inventoryBySimdjson(const std::string& body) {
  dom::parser parser;
  const dom::object inventory = parser.parse(body);
  const dom::array apps = inventory["apps"];
  InventoryData result;
  result.apps.reserve(apps.size());
  for (const dom::object app : apps) {
    result.apps.push_back({text(app, "name"), optionalText(app, "version"),
                           optionalText(app, "publisher"), optionalText(app, "path")});
  }
  result.services = texts(inventory["services"]);
  result.network_interfaces = texts(inventory["network_interfaces"]);
  result.permissions = texts(inventory["permissions"]);
  return result;
}

}  // namespace quillmark::bench
