// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DashboardViewModelRef.h"

namespace quillmark {

DashboardViewModelRef::DashboardViewModelRef(QObject* parent)
    : QObject(parent), model_(DashboardViewModel::create()) {
  // QML must not take ownership of the model or of the lists inside it.
  for (QObject* const object :
       {static_cast<QObject*>(model_.get()), static_cast<QObject*>(model_->alertRows()),
        static_cast<QObject*>(model_->connectionRows()), static_cast<QObject*>(model_->appRows()),
        static_cast<QObject*>(model_->cardRows())}) {
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
  }
}

}  // namespace quillmark
