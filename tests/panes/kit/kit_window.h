#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>
#include <memory>

#include "panes/kit/kit.h"
#include "platform/formatting.h"
#include "support/application/fake_motion.h"
#include "support/desktop_fakes.h"
#include "support/fake_clock.h"

namespace klarvik {

/// A window with the kit in it, for a piece of QML. Whatever QML warns of fails the test.
class KitWindow : public ::testing::Test {
 protected:
  KitWindow() {
    warnings().clear();
    previous = qInstallMessageHandler(collect);
    QAccessible::setActive(true);
    installKit(*view.engine(), {formatting, "/Users/ann", workspace, clock, motionPreference});
    view.setColor(QColor(28, 28, 30));
    view.setResizeMode(QQuickView::SizeViewToRootObject);
  }
  ~KitWindow() override { qInstallMessageHandler(previous); }

  void TearDown() override { EXPECT_EQ(warnings().join("\n").toStdString(), ""); }

  /// The root of `body`, shown and active; `initial` are its first values.
  QQuickItem* show(const QByteArray& body, const QVariantMap& initial = {}) {
    return showComponent("import QtQuick\nimport Klarvik.Kit\n" + body, QUrl("qrc:/test.qml"),
                         initial);
  }

  QQuickItem* showComponent(const QByteArray& qml, const QUrl& url, const QVariantMap& initial) {
    auto* component = new QQmlComponent(view.engine(), &view);
    component->setData(qml, url);
    EXPECT_TRUE(component->isReady()) << component->errorString().toStdString();
    if (!component->isReady()) return nullptr;
    QObject* object = component->createWithInitialProperties(initial);
    EXPECT_NE(object, nullptr) << component->errorString().toStdString();
    if (object == nullptr) return nullptr;
    view.setContent(url, component, object);
    view.show();
    view.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    settle();
    return view.rootObject();
  }

  static void settle() { FakeMotion::turnUntilStill(); }

  QQuickItem* part(const char* name) { return partOf(*view.rootObject(), name); }
  static QString text(const QQuickItem* item) { return item->property("text").toString(); }

  void click(QPointF scenePoint) {
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, scenePoint.toPoint());
  }
  void clickOn(QQuickItem* item) {
    click(item->mapToScene({item->width() / 2, item->height() / 2}));
  }
  void press(Qt::Key key) { QTest::keyClick(&view, key); }
  /// For long enough to be repeated.
  void hold(Qt::Key key) {
    QTest::keyPress(&view, key);
    settle();
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&view, &again);
    QTest::keyRelease(&view, key);
  }

  /// What stands in a Conditional is no child of the objects around it, but of the items.
  static QQuickItem* partOf(const QQuickItem& item, const char* name) {
    for (QQuickItem* child : item.childItems()) {
      if (child->objectName() == name) return child;
      if (QQuickItem* inside = partOf(*child, name)) return inside;
    }
    return nullptr;
  }

  static QAccessibleInterface* accessible(QQuickItem* item) {
    return QAccessible::queryAccessibleInterface(item);
  }

  Formatting formatting{"en_US"};
  FakeWorkspace workspace;
  FakeMotionPreference motionPreference;
  FakeClock clock;
  FakeMotion motion;
  QQuickView view;

 private:
  static QStringList& warnings() {
    static QStringList list;
    return list;
  }
  static void collect(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    warnings() << QString::fromUtf8(context.category) + ": " + message;
  }

  QtMessageHandler previous = nullptr;
};

}  // namespace klarvik
