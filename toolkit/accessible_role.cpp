// SPDX-License-Identifier: MIT
#include "toolkit/accessible_role.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* property_name = "accessible role";

/// Asked by Qt for every object that an assistive program looks at; null leaves the object to Qt.
QAccessibleInterface* make_interface(const QString& /*class_name*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget == nullptr ? QVariant() : widget->property(property_name);
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

}  // namespace

void set_accessible_role(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(make_interface);  // a second installation is ignored
    widget.setProperty(property_name, static_cast<int>(role));
}
