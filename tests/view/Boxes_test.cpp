// Message boxes, answered by keys and clicks as a user would.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Boxes : public ViewTest {
 protected:
  /// Shows a box; `act` is done on it when it is open.
  BoxAnswer Show(BoxIcon icon, BoxButtons buttons, const std::function<void(QMessageBox*)>& act) {
    QTimer::singleShot(0, MainWindow(), [&] {
      auto* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(pBox, nullptr);
      act(pBox);
    });
    return m_desktop.ShowBox("<b>text</b>\r\nmore", "title", icon, buttons);
  }
  static void Press(QMessageBox* pBox, QMessageBox::StandardButton button) {
    QTest::mouseClick(pBox->button(button), Qt::LeftButton);
  }
  ViewDesktop m_desktop;
};

TEST_F(Boxes, ShowPlainTextAndTitle) {
  Show(BoxIcon::Information, BoxButtons::Ok, [](QMessageBox* pBox) {
    EXPECT_EQ(pBox->text(), "<b>text</b>\r\nmore");
    EXPECT_EQ(pBox->textFormat(), Qt::PlainText);
    EXPECT_EQ(pBox->windowTitle(), "title");
    EXPECT_TRUE(pBox->isModal());
    Press(pBox, QMessageBox::Ok);
  });
}

TEST_F(Boxes, ShowTheirIcon) {
  const std::pair<BoxIcon, QMessageBox::Icon> Rows[] = {
      {BoxIcon::Exclamation, QMessageBox::Warning},
      {BoxIcon::Warning, QMessageBox::Warning},
      {BoxIcon::Information, QMessageBox::Information},
      {BoxIcon::Question, QMessageBox::Question},
  };
  for (const auto& [icon, expected] : Rows) {
    Show(icon, BoxButtons::Ok, [&](QMessageBox* pBox) {
      EXPECT_EQ(pBox->icon(), expected);
      Press(pBox, QMessageBox::Ok);
    });
  }
}

TEST_F(Boxes, WithOneButtonCloseEveryWay) {
  EXPECT_EQ(Show(BoxIcon::Warning, BoxButtons::Ok,
                 [](QMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Escape); }),
            BoxAnswer::Ok);
  EXPECT_EQ(Show(BoxIcon::Warning, BoxButtons::Ok, [](QMessageBox* pBox) { pBox->close(); }),
            BoxAnswer::Ok);
  EXPECT_EQ(Show(BoxIcon::Warning, BoxButtons::Ok,
                 [](QMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Return); }),
            BoxAnswer::Ok);
}

TEST_F(Boxes, QuestionsAreAnsweredByTheirButtons) {
  EXPECT_EQ(Show(BoxIcon::Question, BoxButtons::YesNo,
                 [](QMessageBox* pBox) { Press(pBox, QMessageBox::Yes); }),
            BoxAnswer::Yes);
  EXPECT_EQ(Show(BoxIcon::Question, BoxButtons::YesNo,
                 [](QMessageBox* pBox) { Press(pBox, QMessageBox::No); }),
            BoxAnswer::No);
}

TEST_F(Boxes, EnterTakesYes) {
  EXPECT_EQ(Show(BoxIcon::Question, BoxButtons::YesNo,
                 [](QMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Return); }),
            BoxAnswer::Yes);
}

TEST_F(Boxes, QuestionsHaveNoEscapeAndNoClose) {
  const BoxAnswer answer = Show(BoxIcon::Question, BoxButtons::YesNo, [](QMessageBox* pBox) {
    EXPECT_FALSE(pBox->windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QTest::keyClick(pBox, Qt::Key_Escape);
    pBox->close();
    Settle();
    EXPECT_TRUE(pBox->isVisible());
    Press(pBox, QMessageBox::Yes);
  });
  EXPECT_EQ(answer, BoxAnswer::Yes);
}

TEST_F(Boxes, LetEverythingElseGoOn) {
  QStringList aNotes;
  QTimer::singleShot(0, MainWindow(), [&] { aNotes.append("meanwhile"); });
  QTimer::singleShot(10, MainWindow(),
                     [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  m_desktop.ShowBox("text", "title", BoxIcon::Warning, BoxButtons::Ok);
  EXPECT_EQ(aNotes, QStringList{"meanwhile"});
}

TEST_F(Boxes, APumpHandlesWhatWaits) {
  QStringList aNotes;
  QMetaObject::invokeMethod(
      MainWindow(), [&] { aNotes.append("queued"); }, Qt::QueuedConnection);
  m_desktop.PumpEvents();
  EXPECT_EQ(aNotes, QStringList{"queued"});
}

}  // namespace
}  // namespace glidetrak
