#include "kit_window.h"

namespace klarvik {
namespace {

class Elements : public KitWindow {
 protected:
  /// Shows `element` in the middle of a window, so that there is room round it.
  QQuickItem* showOne(const QByteArray& element) {
    show("Item { width: 400; height: 300; " + element + " }");
    return part("it");
  }
};

struct PressableElement {
  const char* qml;
  const char* signal;
  const char* name;
  QAccessible::Role role;
};

const PressableElement pressables[] = {
    {"PrimaryButton { title: 'Clean'", SIGNAL(action()), "Clean", QAccessible::Button},
    {"SecondaryButton { title: 'Stop'", SIGNAL(action()), "Stop", QAccessible::Button},
    {"TextButton { title: 'Open'", SIGNAL(action()), "Open", QAccessible::Button},
    {"SymbolButton { title: 'Settings'; symbol: 'gear'", SIGNAL(action()), "Settings",
     QAccessible::Button},
    {"RevealButton { url: 'file:///a'", SIGNAL(action()), "Show in Finder", QAccessible::Button},
    {"FilterChip { title: 'All kinds'", SIGNAL(action()), "All kinds", QAccessible::Button},
    {"SelectionBox { selection: SelectionState.None; size: 16; label: 'Caches'", SIGNAL(toggled()),
     "Caches", QAccessible::CheckBox},
    {"CheckRow { title: 'Launch at login'; isOn: false", SIGNAL(toggled()), "Launch at login",
     QAccessible::CheckBox},
};

TEST_F(Elements, ThatCanBePressedTellTheirRoleAndName) {
  for (const PressableElement& element : pressables) {
    QQuickItem* item = showOne(QByteArray(element.qml) + "; objectName: 'it'; x: 40; y: 40 }");
    ASSERT_NE(item, nullptr) << element.qml;
    QAccessibleInterface* told = accessible(item);
    ASSERT_NE(told, nullptr) << element.qml;
    EXPECT_EQ(told->role(), element.role) << element.qml;
    EXPECT_EQ(told->text(QAccessible::Name), element.name);
  }
}

class ToolTips : public KitWindow {
 protected:
  /// A button inside something that can be pressed as well; both have help.
  void showNested(const QByteArray& y) {
    show("Item { width: 400; height: 300; Pressable { objectName: 'outer'; x: 20; y: " + y +
         "; width: 300; height: 50; title: 'Trash'; help: 'Opens the Trash'; TextButton { "
         "objectName: 'inner'; x: 200; y: 10; title: 'Empty'; help: 'Removes Zero KB' } } }");
  }
  void pointAt(const char* name, QPointF place) {
    QTest::mouseMove(&view, part(name)->mapToScene(place).toPoint());
  }
  /// Of the tooltips that are to be seen.
  [[nodiscard]] QList<QObject*> tips() {
    QList<QObject*> seen;
    for (QObject* object : view.rootObject()->findChildren<QObject*>()) {
      if (object->inherits("QQuickToolTip") && object->property("opened").toBool()) seen << object;
    }
    return seen;
  }
  [[nodiscard]] bool showsOnly(const QString& text) {
    return QTest::qWaitFor([&] {
      const QList<QObject*> seen = tips();
      return seen.size() == 1 && seen.front()->property("text") == text;
    });
  }
};

TEST_F(ToolTips, OfThingsInsideEachOtherOnlyTheInnermostIsShown) {
  showNested("40");
  pointAt("outer", {10, 25});
  EXPECT_TRUE(showsOnly("Opens the Trash"));
  pointAt("inner", {5, 5});
  EXPECT_TRUE(showsOnly("Removes Zero KB"));
  pointAt("outer", {10, 25});
  EXPECT_TRUE(showsOnly("Opens the Trash"));
}

TEST_F(ToolTips, SayWhatIsTrueAtThisMoment) {
  showNested("40");
  pointAt("inner", {5, 5});
  ASSERT_TRUE(showsOnly("Removes Zero KB"));
  part("inner")->setProperty("help", "Removes 64 MB");
  EXPECT_TRUE(showsOnly("Removes 64 MB"));
  part("inner")->setProperty("help", "");
  EXPECT_TRUE(showsOnly("Opens the Trash"));
}

TEST_F(ToolTips, StandAboveWhatIsAtTheBottomOfTheWindow) {
  showNested("245");
  pointAt("inner", {5, 5});
  ASSERT_TRUE(showsOnly("Removes Zero KB"));
  const QObject* tip = tips().front();
  EXPECT_LE(tip->property("y").toReal() + tip->property("height").toReal(), 0);
}

TEST_F(Elements, ThatCanBePressedAnswerThePointerSpaceAndReturn) {
  for (const PressableElement& element : pressables) {
    QQuickItem* item = showOne(QByteArray(element.qml) + "; objectName: 'it'; x: 40; y: 40 }");
    ASSERT_NE(item, nullptr) << element.qml;
    QSignalSpy presses(item, element.signal);
    clickOn(item);
    EXPECT_EQ(presses.size(), 1) << element.qml;
    press(Qt::Key_Tab);
    EXPECT_TRUE(item->hasActiveFocus()) << element.qml;
    EXPECT_TRUE(item->property("visualFocus").toBool()) << element.qml;
    press(Qt::Key_Space);
    EXPECT_EQ(presses.size(), 2) << element.qml;
    press(Qt::Key_Return);
    EXPECT_EQ(presses.size(), 3) << element.qml;
  }
}

TEST_F(Elements, ThatCanBePressedTakeAHeldKeyForOnePress) {
  QQuickItem* item = showOne("PrimaryButton { objectName: 'it'; title: 'Clean' }");
  QSignalSpy presses(item, SIGNAL(action()));
  press(Qt::Key_Tab);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    presses.clear();
    hold(key);
    EXPECT_EQ(presses.size(), 1);
  }
}

TEST_F(Elements, AHeldKeyOpensAMenuAndTakesNothingFromIt) {
  QQuickItem* item = showOne("FilterMenu { objectName: 'it'; entries: ['Newest', 'Oldest'] }");
  QSignalSpy chosen(item, SIGNAL(chosen(int)));
  press(Qt::Key_Tab);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    chosen.clear();
    hold(key);
    EXPECT_EQ(chosen.size(), 0) << key;
    press(Qt::Key_Down);
    press(key);
    EXPECT_EQ(chosen, QList<QVariantList>{{1}}) << key;
  }
}

TEST_F(Elements, AMenuGivesTheFocusBackToWhatOpenedIt) {
  QQuickItem* item = showOne("FilterMenu { objectName: 'it'; entries: ['Newest', 'Oldest'] }");
  press(Qt::Key_Tab);
  for (const Qt::Key end : {Qt::Key_Escape, Qt::Key_Return}) {
    press(Qt::Key_Space);
    EXPECT_FALSE(item->hasActiveFocus());
    press(end);
    EXPECT_TRUE(item->hasActiveFocus()) << end;
  }
}

TEST_F(Elements, AMenuIsMadeWhenItIsOpened) {
  QQuickItem* item = showOne("FilterMenu { objectName: 'it'; entries: ['Newest', 'Oldest'] }");
  constexpr int notMade = -1;
  const auto entriesMade = [&] {
    const auto parts = item->findChildren<QObject*>();
    const auto list = std::ranges::find_if(
        parts, [](QObject* part) { return part->property("keyNavigationWraps").isValid(); });
    return list != parts.end() ? (*list)->property("count").toInt() : notMade;
  };
  EXPECT_EQ(entriesMade(), notMade);
  press(Qt::Key_Tab);
  press(Qt::Key_Return);
  EXPECT_EQ(entriesMade(), 2);
}

TEST_F(Elements, ThatAreDisabledAnswerNothing) {
  QQuickItem* item =
      showOne("PrimaryButton { objectName: 'it'; title: 'Clean'; isEnabled: false }");
  QSignalSpy presses(item, SIGNAL(action()));
  clickOn(item);
  press(Qt::Key_Tab);
  press(Qt::Key_Return);
  EXPECT_EQ(presses.size(), 0);
}

TEST_F(Elements, ThatAreDisabledAnswerNoAssistiveToolEither) {
  for (const char* qml : {"PrimaryButton { objectName: 'it'; title: 'Clean'; isEnabled: false }",
                          "PrimaryButton { objectName: 'it'; title: 'Clean'; visible: false }"}) {
    QQuickItem* item = showOne(qml);
    QSignalSpy presses(item, SIGNAL(action()));
    accessible(item)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses.size(), 0) << qml;
  }
}

TEST_F(Elements, ThatAreNoLongerOnTheScreenAnswerNoKey) {
  QQuickItem* item = showOne("PrimaryButton { objectName: 'it'; title: 'Empty Trash' }");
  QSignalSpy presses(item, SIGNAL(action()));
  press(Qt::Key_Tab);
  press(Qt::Key_Space);
  ASSERT_EQ(presses.size(), 1);
  item->setVisible(false);
  press(Qt::Key_Space);
  press(Qt::Key_Return);
  EXPECT_EQ(presses.size(), 1);
}

TEST_F(Elements, ABoxOfSomeTellsThatItIsMixed) {
  QQuickItem* item =
      showOne("SelectionBox { objectName: 'it'; selection: SelectionState.Partial; size: 16 }");
  EXPECT_TRUE(accessible(item)->state().checkStateMixed);
  EXPECT_FALSE(accessible(item)->state().checked);
}

TEST_F(Elements, AChipWithoutAnActionIsALabel) {
  QQuickItem* chip = showOne("FilterChip { objectName: 'it'; title: 'a'; hasAction: false }");
  QSignalSpy presses(chip, SIGNAL(action()));
  clickOn(chip);
  EXPECT_EQ(presses.size(), 0);
  EXPECT_EQ(accessible(chip)->role(), QAccessible::StaticText);
}

TEST_F(Elements, TheSelectionBoxAnswersSixPointsAroundItAndNotSeven) {
  QQuickItem* box = showOne(
      "SelectionBox { objectName: 'it'; x: 100; y: 100; selection: SelectionState.All; size: 16;"
      " label: 'a' }");
  QSignalSpy toggles(box, SIGNAL(toggled()));
  for (const QPointF inside :
       {QPointF(95, 108), QPointF(121, 108), QPointF(108, 95), QPointF(108, 121)}) {
    click(inside);
  }
  EXPECT_EQ(toggles.size(), 4);
  for (const QPointF outside :
       {QPointF(92, 108), QPointF(123, 108), QPointF(108, 92), QPointF(108, 123)}) {
    click(outside);
  }
  EXPECT_EQ(toggles.size(), 4);
}

TEST_F(Elements, AGroupRowTellsItsBoxFromTheRestOfTheRow) {
  QQuickItem* row = showOne(
      "ToolGroupRow { objectName: 'it'; title: 'Logs'; selection: 0; isExpanded: false;"
      " width: 400 }");
  QSignalSpy selections(row, SIGNAL(toggleSelection()));
  QSignalSpy expansions(row, SIGNAL(toggleExpanded()));
  click({32, row->height() / 2});
  EXPECT_EQ(selections.size(), 1);
  EXPECT_EQ(expansions.size(), 0);
  click({200, row->height() / 2});
  EXPECT_EQ(selections.size(), 1);
  EXPECT_EQ(expansions.size(), 1);
}

TEST_F(Elements, ADetailRowWithoutAPathHasNoFolderLineAndNoRevealButton) {
  showOne("ToolDetailRow { objectName: 'it'; name: 'a'; width: 400 }");
  EXPECT_FALSE(part("folderLine")->isVisible());
  EXPECT_FALSE(part("revealButton")->isVisible());
}

TEST_F(Elements, ADetailRowWithAPathRevealsIt) {
  showOne(
      "ToolDetailRow { objectName: 'it'; name: 'a'; path: 'file:///Users/ann/b/a%FF'; width: 400 "
      "}");
  EXPECT_EQ(text(part("folderLine")), "~/b/");
  clickOn(part("revealButton"));
  ASSERT_EQ(workspace.revealedItems.size(), 1U);
  EXPECT_EQ(workspace.revealedItems[0], Path("/Users/ann/b/a\xff"));
}

class Lists : public Elements {
 protected:
  QQuickItem* showList() {
    return showOne(
        "RowList { objectName: 'it'; name: 'Things'; model: 50;"
        " delegate: RowFrame { required index;"
        "   description: 'Thing ' + index; Accessible.role: Accessible.Button;"
        "   SelectionBox { selection: SelectionState.None; size: 16; activeFocusOnTab: false;"
        "     onToggled: parent.parent.pressBox() } } }");
  }
  static QQuickItem* currentRow(const QQuickItem* list) {
    return list->property("currentItem").value<QQuickItem*>();
  }
  static bool isMarked(const QQuickItem* list) {
    return currentRow(list)->property("isMarked").toBool();
  }
  static QList<QVariantList> rowsOf(int row) { return {{row}}; }

  static constexpr int fewRows = 3;

  static std::ptrdiff_t rowsShown(const QQuickItem* list) {
    const auto rows = list->property("contentItem").value<QQuickItem*>()->childItems();
    return std::ranges::count_if(rows, [](QQuickItem* row) {
      return row->property("isMarked").isValid() && row->isVisible();
    });
  }
  /// A few more rows in each frame, until there are as many as are in sight.
  void fillTheListInSight(const QQuickItem* list) {
    const auto inSight = static_cast<int>(list->height() / currentRow(list)->height());
    ASSERT_LT(rowsShown(list), inSight);
    for (int frame = 0; frame < inSight && rowsShown(list) < inSight; ++frame) {
      const auto before = rowsShown(list);
      motion.moveOn(std::chrono::milliseconds(16));
      settle();
      EXPECT_LE(rowsShown(list), before + fewRows);
    }
    EXPECT_GE(rowsShown(list), inSight);
  }
};

TEST_F(Lists, AnswerEveryKeyThatMovesThroughThem) {
  QQuickItem* list = showList();
  press(Qt::Key_Tab);
  EXPECT_TRUE(isMarked(list));
  const int inSight = static_cast<int>(list->height() / currentRow(list)->height());
  const std::pair<Qt::Key, int> moves[] = {{Qt::Key_Down, 1},         {Qt::Key_PageDown, inSight},
                                           {Qt::Key_Up, inSight - 1}, {Qt::Key_PageUp, 0},
                                           {Qt::Key_End, 49},         {Qt::Key_Home, 0}};
  for (const auto& [key, row] : moves) {
    press(key);
    EXPECT_EQ(list->property("currentIndex").toInt(), row) << key;
  }
}

TEST_F(Lists, MakeRowsThatComeAtOnceAFewInEachFrame) {
  QQuickItem* list = showList();
  EXPECT_GT(rowsShown(list), 0);
  EXPECT_LE(rowsShown(list), fewRows);
  fillTheListInSight(list);
}

TEST_F(Lists, MakeTheManyRowsOfOneThatIsOpenedAFewInEachFrame) {
  QQuickItem* list = showOne(
      "RowList { id: it; objectName: 'it'; name: 'Things'; model: ListModel { id: things }"
      " function add(row, count) {"
      "   things.insert(row, Array.from({ length: count }, () => ({ name: '' }))) }"
      " Component.onCompleted: it.add(0, 3);"
      " onActivated: row => it.add(row + 1, 40);"
      " delegate: RowFrame { required index; Accessible.role: Accessible.Button } }");
  EXPECT_EQ(rowsShown(list), 3);
  QMetaObject::invokeMethod(list, "activated", Q_ARG(int, 0));
  settle();
  EXPECT_LE(rowsShown(list), 1 + fewRows);
  fillTheListInSight(list);
}

TEST_F(Lists, TakeAHeldKeyForOnePress) {
  QQuickItem* list = showList();
  QSignalSpy activations(list, SIGNAL(activated(int)));
  QSignalSpy toggles(list, SIGNAL(toggled(int)));
  press(Qt::Key_Tab);
  press(Qt::Key_Down);
  hold(Qt::Key_Return);
  EXPECT_EQ(activations, rowsOf(1));
  activations.clear();
  hold(Qt::Key_Enter);
  EXPECT_EQ(activations, rowsOf(1));
  hold(Qt::Key_Space);
  EXPECT_EQ(toggles, rowsOf(1));
}

TEST_F(Lists, ThatAreNoLongerOnTheScreenAnswerNoKey) {
  QQuickItem* list = showList();
  QSignalSpy activations(list, SIGNAL(activated(int)));
  press(Qt::Key_Tab);
  list->setVisible(false);
  press(Qt::Key_Return);
  EXPECT_EQ(activations.size(), 0);
}

TEST_F(Lists, TellAPressOnARowFromAPressOnItsBox) {
  QQuickItem* list = showList();
  fillTheListInSight(list);
  QSignalSpy activations(list, SIGNAL(activated(int)));
  QSignalSpy toggles(list, SIGNAL(toggled(int)));
  click({200, 115});
  EXPECT_EQ(activations, rowsOf(2));
  EXPECT_EQ(toggles.size(), 0);
  EXPECT_TRUE(currentRow(list)->hasActiveFocus());
  EXPECT_FALSE(isMarked(list));
  click({32, 161});
  EXPECT_EQ(activations.size(), 1);
  EXPECT_EQ(toggles, rowsOf(3));
  EXPECT_EQ(list->property("currentIndex").toInt(), 3);
}

TEST_F(Lists, AnswerAssistiveTools) {
  QQuickItem* list = showList();
  QSignalSpy activations(list, SIGNAL(activated(int)));
  QAccessibleInterface* row = accessible(currentRow(list));
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->text(QAccessible::Name), "Thing 0");
  row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(activations, rowsOf(0));
}

TEST_F(Elements, ANameIsNeverReadAsMarkup) {
  const qreal marked = showOne("Label { objectName: 'it'; text: '<b>a</b>' }")->implicitWidth();
  const qreal plain = showOne("Label { objectName: 'it'; text: 'aaaa' }")->implicitWidth();
  EXPECT_GT(marked, plain);
}

TEST_F(Elements, APaneWithoutAnActionTitleShowsNoButtonBusyOrNot) {
  for (const char* busy : {"true", "false"}) {
    showOne(QByteArray("ToolPane { objectName: 'it'; title: 'a'; subtitle: 'b'; isBusy: ") + busy +
            "; anchors.fill: parent }");
    EXPECT_FALSE(part("mainButton")->isVisible());
  }
}

TEST_F(Elements, ABusyPaneWithALoaderInItsRowsShowsStopAndNoBar) {
  showOne(
      "ToolPane { objectName: 'it'; title: 'a'; subtitle: 'b'; actionTitle: 'Rescan'; isBusy: true;"
      " rowsShowLoader: true; anchors.fill: parent }");
  EXPECT_EQ(part("mainButton")->property("title").toString(), "Stop");
  EXPECT_FALSE(part("bar")->isVisible());
  part("it")->setProperty("rowsShowLoader", false);
  EXPECT_TRUE(part("bar")->isVisible());
}

TEST_F(Elements, APaneShowsItsColumns) {
  showOne(
      "ToolPane { objectName: 'it'; title: 'a'; subtitle: 'b'; anchors.fill: parent;"
      " columns: [ColumnSpec { title: 'FILE' }, ColumnSpec { title: 'SIZE'; width: 90 }] }");
  EXPECT_TRUE(part("columnHeader")->isVisible());
}

TEST_F(Elements, AFooterStopsWhileItIsBusyAndActsWhileItIsNot) {
  QQuickItem* footer = showOne(
      "ToolFooter { objectName: 'it'; selectionSummary: 's'; explanation: 'e'; buttonTitle: "
      "'Clean';"
      " canStop: true; isBusy: true; width: 400 }");
  QSignalSpy stops(footer, SIGNAL(stop()));
  QSignalSpy actions(footer, SIGNAL(action()));
  EXPECT_EQ(text(part("firstLine")), "s");
  EXPECT_EQ(part("mainButton")->property("title").toString(), "Working…");
  clickOn(part("stopButton"));
  clickOn(part("mainButton"));
  EXPECT_EQ(stops.size(), 1);
  EXPECT_EQ(actions.size(), 0);

  footer->setProperty("isBusy", false);
  EXPECT_EQ(part("stopButton"), nullptr);
  clickOn(part("mainButton"));
  EXPECT_EQ(actions.size(), 1);
}

TEST_F(Elements, AFooterShowsTheProgressItIsGiven) {
  QQuickItem* footer = showOne(
      "ToolFooter { objectName: 'it'; selectionSummary: 's'; explanation: 'e'; buttonTitle: "
      "'Clean';"
      " isBusy: true; width: 400 }");
  EXPECT_EQ(part("progressLine"), nullptr);
  footer->setProperty("progress", QVariant::fromValue(RemovalProgress(DeletionProgress{
                                      .completed = 1, .total = 4, .currentName = {}, .freed = 0})));
  EXPECT_EQ(text(part("firstLine")), "Removing 2 of 4 · Zero KB so far");
  EXPECT_EQ(text(part("lastLine")), "Starting…");
  EXPECT_TRUE(part("progressLine")->isVisible());
  settle();
  EXPECT_EQ(part("progressLine")->width(), 320);
}

TEST_F(Elements, AChartAnswersATapOnASlice) {
  const QVariant slices = QVariant::fromValue(
      QList<DonutSlice>{{.id = "home", .label = "Home", .value = 1, .color = Qt::blue}});
  QQuickItem* chart = show("DonutChart { size: 200; thickness: 30 }", {{"slices", slices}});
  ASSERT_NE(chart, nullptr);
  QSignalSpy selections(chart, SIGNAL(select(QString)));
  click({100, 15});
  ASSERT_EQ(selections.size(), 1);
  EXPECT_EQ(selections[0][0], "home");
  click({100, 100});
  EXPECT_EQ(selections.size(), 1);
}

class Dialogs : public KitWindow {
 protected:
  QQuickItem* present() {
    return show(
        "Item { id: all; width: 600; height: 400; property string answer; property bool up: true;"
        " PrimaryButton { objectName: 'behind'; title: 'behind'; onAction: all.answer = 'behind' }"
        " ConfirmationDialog { isPresented: all.up; title: 'T'; message: 'M'; buttons: ["
        " DialogButton { title: 'Empty Trash'; role: ButtonRole.Destructive;"
        "   onTriggered: { all.answer = 'destroyed'; all.up = false } },"
        " DialogButton { title: 'Cancel'; role: ButtonRole.Cancel;"
        "   onTriggered: { all.answer = 'cancelled'; all.up = false } } ] } }");
  }
  QString answer() const { return view.rootObject()->property("answer").toString(); }
};

TEST_F(Dialogs, ReturnCancels) {
  present();
  press(Qt::Key_Return);
  EXPECT_EQ(answer(), "cancelled");
}

TEST_F(Dialogs, GiveTheFocusBackToWhatHadItBefore) {
  present();
  press(Qt::Key_Escape);
  part("behind")->forceActiveFocus();
  view.rootObject()->setProperty("up", true);
  settle();
  EXPECT_FALSE(part("behind")->hasActiveFocus());
  press(Qt::Key_Escape);
  EXPECT_TRUE(part("behind")->hasActiveFocus());
}

TEST_F(Dialogs, EscapeCancels) {
  present();
  press(Qt::Key_Escape);
  EXPECT_EQ(answer(), "cancelled");
}

TEST_F(Dialogs, TabReachesTheDestructiveButtonAndNeverLeavesTheDialog) {
  present();
  for (int step = 0; step < 5; ++step) {
    press(Qt::Key_Tab);
    EXPECT_NE(view.activeFocusItem(), part("behind"));
  }
  press(Qt::Key_Return);
  EXPECT_EQ(answer(), "destroyed");
}

TEST_F(Dialogs, WhatLiesBehindCannotBePressed) {
  present();
  clickOn(part("behind"));
  EXPECT_EQ(answer(), "");
}

}  // namespace
}  // namespace klarvik
