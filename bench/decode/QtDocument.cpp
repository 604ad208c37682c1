// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "decode/Contenders.h"

namespace quillmark::bench {
namespace {

QJsonObject objectOf(const std::string& body) {
  return QJsonDocument::fromJson(QByteArray::fromRawData(body.data(), qsizetype(body.size())))
      .object();
}

std::string text(const QJsonObject& object, QLatin1StringView key) {
  return object.value(key).toString().toStdString();
}

std::optional<std::string> optionalText(const QJsonObject& object, QLatin1StringView key) {
  const auto found = object.value(key);
  return found.isString() ? std::optional(found.toString().toStdString()) : std::nullopt;
}

std::vector<std::string> texts(const QJsonArray& array) {
  std::vector<std::string> result;
  result.reserve(std::size_t(array.size()));
  for (const auto element : array) {
    result.push_back(element.toString().toStdString());
  }
  return result;
}

}  // namespace

NetworkResponse connectionsByQt(const std::string& body) {
  const auto array = objectOf(body).value(QLatin1StringView("connections")).toArray();
  NetworkResponse result;
  result.connections.reserve(std::size_t(array.size()));
  for (const auto element : array) {
    const auto object = element.toObject();
    const auto at = [&](const char* key) { return text(object, QLatin1StringView(key)); };
    result.connections.push_back({at("protocol"), at("local_address"), at("local_port"),
                                  at("remote_address"), at("remote_port"), at("state"),
                                  optionalText(object, QLatin1StringView("pid")),
                                  optionalText(object, QLatin1StringView("risk_level"))});
  }
  return result;
}

InventoryData inventoryByQt(const std::string& body) {
  const auto object = objectOf(body);
  const auto listAt = [&](const char* key) {
    return object.value(QLatin1StringView(key)).toArray();
  };
  const auto apps = listAt("apps");
  InventoryData result;
  result.apps.reserve(std::size_t(apps.size()));
  for (const auto element : apps) {
    const auto app = element.toObject();
    result.apps.push_back({text(app, QLatin1StringView("name")),
                           optionalText(app, QLatin1StringView("version")),
                           optionalText(app, QLatin1StringView("publisher")),
                           optionalText(app, QLatin1StringView("path"))});
  }
  result.services = texts(listAt("services"));
  result.network_interfaces = texts(listAt("network_interfaces"));
  result.permissions = texts(listAt("permissions"));
  return result;
}

}  // namespace quillmark::bench
