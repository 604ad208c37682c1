// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QTimer>

#include <boost/asio/awaitable.hpp>

#include "client/IPCClient.h"
#include "viewmodel/AlertPresentation.h"
#include "viewmodel/AppPresentation.h"
#include "viewmodel/ConnectionPresentation.h"
#include "viewmodel/Snapshot.h"
#include "viewmodel/SnapshotListModel.h"
#include "viewmodel/StatsCard.h"
#include "viewmodel/StatusPresentation.h"

namespace quillmark {

/// The panel's data about the agent: the complete result of the last finished poll.
///
/// Four published fields (`status`, `alerts`, `networkConnections`,
/// `inventory`) are assigned together after every poll, changed or not. Each
/// assignment first emits `objectWillChange`, while the old value can still be
/// read, then stores the value, then emits the field's own signal. After the fourth
/// field the list models get the same values, in the form that views read.
///
/// Call everything here on the UI thread; only the polls' network work runs on the
/// task executor, which must exist.
class DashboardViewModel final : public QObject,
                                 public std::enable_shared_from_this<DashboardViewModel> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by DashboardViewModelRef")
  Q_PROPERTY(quillmark::StatusPresentation status READ statusPresentation NOTIFY statusChanged)
  Q_PROPERTY(quillmark::ListModel* alerts READ alertRows CONSTANT)
  Q_PROPERTY(quillmark::ListModel* networkConnections READ connectionRows CONSTANT)
  Q_PROPERTY(bool hasInventory READ hasInventory NOTIFY inventoryChanged)
  Q_PROPERTY(quillmark::ListModel* apps READ appRows CONSTANT)
  Q_PROPERTY(quillmark::ListModel* statsCards READ cardRows CONSTANT)

 public:
  /// Creates a model that has not polled yet. Its client reads the access token now.
  [[nodiscard]] static std::shared_ptr<DashboardViewModel> create();

  /// Polls at once, then every 5 seconds until the process ends; this keeps the model
  /// alive. Call each time the view is shown. Earlier calls stay in effect: after two
  /// calls, the model polls twice every 5 seconds.
  Q_INVOKABLE void startPolling();

  /// No value until a poll has finished, and after one whose status request failed.
  [[nodiscard]] const std::optional<AgentStatus>& status() const { return latest_.status; }
  /// Empty when there is no value.
  [[nodiscard]] const std::vector<ThreatAlert>& alerts() const { return *latest_.alerts; }
  /// Empty when there is no value.
  [[nodiscard]] const std::vector<NetworkConnection>& networkConnections() const {
    return *latest_.networkConnections;
  }
  /// Null when there is no value.
  [[nodiscard]] const InventoryData* inventory() const { return latest_.inventory.get(); }

  [[nodiscard]] StatusPresentation statusPresentation() const { return present(latest_.status); }
  [[nodiscard]] bool hasInventory() const { return latest_.inventory != nullptr; }
  [[nodiscard]] ListModel* alertRows() { return &alertRows_; }
  [[nodiscard]] ListModel* connectionRows() { return &connectionRows_; }
  [[nodiscard]] ListModel* appRows() { return &appRows_; }
  [[nodiscard]] ListModel* cardRows() { return &cardRows_; }

 Q_SIGNALS:
  void objectWillChange();
  void statusChanged();
  void alertsChanged();
  void networkConnectionsChanged();
  void inventoryChanged();

 private:
  /// One poll's values; all absent by default.
  struct PollResult {
    std::optional<AgentStatus> status;
    Snapshot<std::vector<ThreatAlert>> alerts = emptyList<ThreatAlert>();
    Snapshot<std::vector<NetworkConnection>> networkConnections = emptyList<NetworkConnection>();
    Snapshot<InventoryData> inventory;
  };

  DashboardViewModel();

  void updateData();
  [[nodiscard]] static boost::asio::awaitable<void> poll(std::shared_ptr<DashboardViewModel> self);
  void assign(PollResult result);
  void showLists();
  void presentAgain();

  template <class Value>
  void publish(Value& field, Value& value, void (DashboardViewModel::*changed)());

  PollResult latest_;
  const IPCClient client_;
  /// The newest timer: part of the model's state, but not used, because polling never stops.
  QPointer<QTimer> timer_;

  SnapshotListModel<ThreatAlert> alertRows_;
  SnapshotListModel<NetworkConnection> connectionRows_;
  SnapshotListModel<InstalledApp> appRows_;
  SnapshotListModel<StatsCard> cardRows_;
};

}  // namespace quillmark
