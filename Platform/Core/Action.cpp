#include "Platform/Core/Action.h"

#include "Platform/Core/MainThread.h"

#include <QApplication>
#include <QByteArray>
#include <QMetaObject>
#include <QPointer>
#include <QWidget>

namespace platform {

namespace {

QPointer<QObject>& delegate() {
    static QPointer<QObject> object;
    return object;
}

QPointer<QObject>& documentController() {
    static QPointer<QObject> object;
    return object;
}

QObject* responderAmongAncestors(QWidget* widget, Selector selector) {
    for (; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        if (respondsTo(widget, selector))
            return widget;
    return nullptr;
}

} // namespace

void setApplicationDelegate(QObject* object) {
    delegate() = object;
}

void setDocumentController(QObject* object) {
    documentController() = object;
}

bool respondsTo(const QObject* object, Selector selector) {
    const QByteArray signature = QByteArray(selector.name) + "(QObject*)";
    return object != nullptr && object->metaObject()->indexOfMethod(signature.constData()) >= 0;
}

QObject* targetForAction(Selector selector, QObject* target) {
    if (target != nullptr)
        return respondsTo(target, selector) ? target : nullptr;
    if (QObject* responder = responderAmongAncestors(QApplication::focusWidget(), selector))
        return responder;
    if (QObject* responder = responderAmongAncestors(QApplication::activeWindow(), selector))
        return responder;
    for (QObject* const object : {delegate().data(), documentController().data()})
        if (respondsTo(object, selector))
            return object;
    return nullptr;
}

bool sendAction(Selector selector, QObject* target, QObject* sender) {
    requireMainThread();
    QObject* const responder = targetForAction(selector, target);
    return responder != nullptr &&
           QMetaObject::invokeMethod(responder, selector.name, Qt::DirectConnection, Q_ARG(QObject*, sender));
}

} // namespace platform
