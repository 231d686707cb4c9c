#pragma once

// The two forms on the screen, and a hand on mouse and keys.

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTest>
#include <QWidget>
#include <functional>
#include <vector>

#include "form/ControlTable.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "platform/ThisMachine.h"
#include "station/Print.h"
#include "view/MainWindow.h"
#include "view/View.h"

namespace glidetrak {

/// A mouse event as a handler heard it.
struct HeardMouse {
  int iButton;
  float fX, fY;
  bool operator==(const HeardMouse&) const = default;
};

class ViewTest : public ::testing::Test {
 protected:
  /// In design state, hidden, in English.
  ViewTest();

  /// Shows the main window and waits until it is active.
  void Show();
  /// The program box with the editor in it, too.
  void ShowEditor();
  /// Lets everything happen that waits for the event loop.
  static void Settle();

  /// The widget of that name on the main window.
  static QWidget* Widget(const QString& sName);
  static QPlainTextEdit* Editor();
  static QWidget* AboutWindow();

  /// One mouse event at a place inside the widget. A move takes the held buttons.
  static void Mouse(QWidget* pWidget, QEvent::Type type, QPoint place, Qt::MouseButton button,
                    Qt::MouseButtons held);
  static void Press(QWidget* pWidget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
  static void Release(QWidget* pWidget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
  static void Move(QWidget* pWidget, QPoint place, Qt::MouseButtons held = Qt::NoButton);

  static void DoubleClick(QWidget* pWidget, QPoint place);

  /// A handler that notes what it hears.
  static std::function<void()> Note(QStringList& aNotes, const QString& sNote);
  static std::function<void(int, float, float)> Note(std::vector<HeardMouse>& aHeard);

  ThisMachine m_machine;
};

}  // namespace glidetrak
