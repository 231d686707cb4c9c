// Message boxes, answered by keys and clicks as a user would.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <string>

#include "view/ViewDesktop.h"
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

struct BandRow {
  QPoint window;
  float fBandHeight;  ///< twips
};

/// The screen here is 800 by 800, and the band is 600 wide.
const BandRow BandRows[] = {
    {{100, 100}, 3000}, {{0, 0}, 3000},     {{100, 100}, 1800},  {{-500, 100}, 3000},
    {{700, 100}, 3000}, {{100, 720}, 3000}, {{100, -150}, 3000},
};

TEST_F(Boxes, OfAnErrorStandOverTheTopBandAndOnTheScreen) {
  ViewTest::Show();
  const QRect screen = MainWindow()->screen()->availableGeometry();
  picHardware.Width = 9000;
  for (const BandRow& row : BandRows) {
    picHardware.Height = row.fBandHeight;
    MainWindow()->move(row.window);
    Settle();
    QRect box;
    QTimer::singleShot(0, MainWindow(), [&] {
      Settle();
      box = QApplication::activeModalWidget()->frameGeometry();
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    m_desktop.ShowBox("text", "title", BoxIcon::Exclamation, BoxButtons::Ok, BoxPlace::TopBand);
    const QWidget* pBand = Widget("picHardware");
    const QRect band(pBand->mapToGlobal(QPoint(0, 0)), pBand->size());
    const auto sRow = "row " + std::to_string(&row - BandRows);
    EXPECT_TRUE(screen.contains(box)) << sRow;
    if (!screen.contains(band)) continue;
    EXPECT_LE(box.bottom(), band.bottom()) << sRow;
    EXPECT_NEAR(box.center().x(), band.center().x(), 1) << sRow;
  }
}

TEST_F(Boxes, OfAnErrorStandAnywhereWhileTheWindowIsHidden) {
  QTimer::singleShot(0, MainWindow(),
                     [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  EXPECT_EQ(
      m_desktop.ShowBox("text", "title", BoxIcon::Exclamation, BoxButtons::Ok, BoxPlace::TopBand),
      BoxAnswer::Ok);
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
