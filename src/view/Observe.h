#pragma once

// Watching a control's properties.

#include <QObject>
#include <utility>

#include "form/Controls.h"

namespace glidetrak {

/// One watched property, for as long as the owner lives.
class Observer : public QObject {
 public:
  template <class Property, class Apply>
  Observer(QObject* pOwner, Property& property, Apply apply)
      : QObject(pOwner), m_notifier(property.addNotifier(std::move(apply))) {}

 private:
  QPropertyNotifier m_notifier;
};

/// Calls `apply` at every change of the property.
template <class Property, class Apply>
void ObserveChanges(QObject* pOwner, Property& property, Apply apply) {
  new Observer(pOwner, property, std::move(apply));
}

/// Calls `apply` now and at every change.
template <class Property, class Apply>
void Observe(QObject* pOwner, Property& property, Apply apply) {
  apply();
  ObserveChanges(pOwner, property, std::move(apply));
}

/// Calls `apply` now and whenever the control moves or changes size.
template <class Apply>
void ObservePlace(QObject* pOwner, Control& control, Apply apply) {
  apply();
  for (QProperty<float>* pLength : {&control.Left, &control.Top, &control.Width, &control.Height}) {
    ObserveChanges(pOwner, *pLength, apply);
  }
}

}  // namespace glidetrak
