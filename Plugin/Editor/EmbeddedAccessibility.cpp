#include "Plugin/Editor/EmbeddedAccessibility.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QList>
#include <QWidget>

namespace noteloft::plugin {

namespace {

QList<QWidget*> editors; // main thread

/// The application with the editors behind its own windows.
class ApplicationInterface : public QAccessibleApplication {
public:
    int childCount() const override {
        return QAccessibleApplication::childCount() + static_cast<int>(editors.size());
    }

    QAccessibleInterface* child(int index) const override {
        const int own = QAccessibleApplication::childCount();
        if (index < own)
            return QAccessibleApplication::child(index);
        return QAccessible::queryAccessibleInterface(editors.value(index - own));
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto index = editors.indexOf(qobject_cast<QWidget*>(child->object()));
        return index < 0 ? QAccessibleApplication::indexOfChild(child)
                         : QAccessibleApplication::childCount() + static_cast<int>(index);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    return object != nullptr && object == QCoreApplication::instance() ? new ApplicationInterface : nullptr;
}

} // namespace

void EmbeddedAccessibility::install() {
    QAccessible::installFactory(makeInterface);
}

EmbeddedAccessibility::EmbeddedAccessibility(QWidget& editor) : m_editor(editor) {
    editors.append(&editor);
}

EmbeddedAccessibility::~EmbeddedAccessibility() {
    editors.removeOne(&m_editor);
}

} // namespace noteloft::plugin
