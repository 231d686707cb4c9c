// The window itself: size, place, state, showing and closing, and what the desktop tells of it.

#include <QApplication>
#include <QTimer>

#include "view/Units.h"
#include "view/ViewDesktop.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Window : public ViewTest {
 protected:
  Window() {
    frmGlidetrak.Resize = [this] {
      ++m_iResizes;
      if (OnResize) OnResize();
    };
  }
  QSize ClientTwips() {
    return {qRound(frmGlidetrak.ScaleWidth), qRound(frmGlidetrak.ScaleHeight)};
  }
  int m_iResizes = 0;
  std::function<void()> OnResize;
};

TEST_F(Window, StartsWithTheDesignsClientArea) {
  EXPECT_EQ(ClientTwips(), QSize(16320, 10635));
  EXPECT_EQ(frmGlidetrak.Width, 16320);
  EXPECT_EQ(frmGlidetrak.Height, Twips(MainWindow()->height()));
  EXPECT_GT(frmGlidetrak.Height, 10635);
  EXPECT_EQ(m_iResizes, 0);
  Show();
  EXPECT_EQ(MainWindow()->Client()->size(), QSize(1088, 709));
}

TEST_F(Window, IsHiddenUntilShown) {
  EXPECT_FALSE(MainWindow()->isVisible());
  Show();
  EXPECT_TRUE(MainWindow()->isVisible());
  EXPECT_TRUE(frmGlidetrak.Visible);
  frmGlidetrak.Visible = false;
  EXPECT_FALSE(MainWindow()->isVisible());
}

TEST_F(Window, TheFirstShowingIsAResize) {
  Show();
  EXPECT_EQ(m_iResizes, 1);
  frmGlidetrak.Visible = false;
  Show();
  EXPECT_EQ(m_iResizes, 1);
}

TEST_F(Window, TheUsersResizeIsTold) {
  Show();
  m_iResizes = 0;
  MainWindow()->resize(1000, 700);
  const int iMenu = MainWindow()->height() - MainWindow()->Client()->height();
  EXPECT_EQ(frmGlidetrak.Width, 15000);
  EXPECT_EQ(frmGlidetrak.Height, 10500);
  EXPECT_EQ(ClientTwips(), QSize(15000, 10500 - iMenu * 15));
  EXPECT_EQ(m_iResizes, 1);
}

TEST_F(Window, TheStationsSizeIsObeyed) {
  Show();
  m_iResizes = 0;
  frmGlidetrak.Width = 14400;
  EXPECT_EQ(MainWindow()->width(), 960);
  EXPECT_EQ(m_iResizes, 1);
  EXPECT_EQ(frmGlidetrak.ScaleWidth, 14400);
  frmGlidetrak.Width = 14403;
  EXPECT_EQ(frmGlidetrak.Width, 14403);
  EXPECT_EQ(m_iResizes, 1);
}

TEST_F(Window, AHiddenWindowResizesToo) {
  frmGlidetrak.Height = 9700;
  EXPECT_EQ(MainWindow()->height(), 647);
  EXPECT_LT(frmGlidetrak.ScaleHeight, 9700);
  EXPECT_EQ(m_iResizes, 1);
}

/// The smallest size is kept by the station, after the fact.
TEST_F(Window, AResizeMayBeAnsweredByAnother) {
  OnResize = [] {
    if (frmGlidetrak.Width < 14400) frmGlidetrak.Width = 14400;
    if (frmGlidetrak.Height < 9700) frmGlidetrak.Height = 9705;
  };
  frmGlidetrak.Height = 0;
  frmGlidetrak.Width = 0;
  EXPECT_EQ(MainWindow()->size(), QSize(960, 647));
  Show();
  MainWindow()->resize(300, 200);
  EXPECT_EQ(MainWindow()->size(), QSize(960, 647));
  EXPECT_EQ(frmGlidetrak.Width, 14400);
}

TEST_F(Window, ItsPlaceIsToldAndObeyed) {
  Show();
  MainWindow()->setGeometry(QRect(QPoint(30, 40), MainWindow()->size()));
  Settle();
  EXPECT_EQ(frmGlidetrak.Left, 450);
  EXPECT_EQ(frmGlidetrak.Top, 600);
  frmGlidetrak.Left = 150;
  EXPECT_EQ(MainWindow()->geometry().topLeft(), QPoint(10, 40));
  frmGlidetrak.Top = -150;
  EXPECT_EQ(MainWindow()->geometry().topLeft(), QPoint(10, -10));
}

TEST_F(Window, KeepsThePlaceThatItWasGivenHidden) {
  frmGlidetrak.Left = 300;
  frmGlidetrak.Top = 450;
  Show();
  EXPECT_EQ(MainWindow()->geometry().topLeft(), QPoint(20, 30));
  EXPECT_EQ(frmGlidetrak.Left, 300);
  EXPECT_EQ(frmGlidetrak.Top, 450);
}

TEST_F(Window, ItsStateIsToldAndObeyed) {
  Show();
  frmGlidetrak.WindowState = stateMaximised;
  EXPECT_TRUE(MainWindow()->isMaximized());
  MainWindow()->setWindowState(Qt::WindowNoState);
  EXPECT_EQ(frmGlidetrak.WindowState, stateNormal);
  MainWindow()->setWindowState(Qt::WindowMinimized);
  EXPECT_EQ(frmGlidetrak.WindowState, stateMinimised);
}

TEST_F(Window, AMaximisedOneCannotBeSizedOrMoved) {
  Show();
  frmGlidetrak.WindowState = stateMaximised;
  Settle();
  const QRect place = MainWindow()->geometry();
  frmGlidetrak.Width = 14400;
  frmGlidetrak.Left = 900;
  EXPECT_EQ(MainWindow()->geometry(), place);
}

TEST_F(Window, TheDesktopTellsTheNormalPlaceOfAMaximisedOne) {
  ViewDesktop desktop;
  frmGlidetrak.Width = 15000;
  frmGlidetrak.Left = 150;
  frmGlidetrak.Top = 75;
  Show();
  frmGlidetrak.WindowState = stateMaximised;
  Settle();
  const auto normal = desktop.NormalRect();
  ASSERT_TRUE(normal);
  EXPECT_EQ(normal->lLeft, 10);
  EXPECT_EQ(normal->lTop, 5);
  EXPECT_EQ(normal->lRight, 1010);
}

TEST_F(Window, TheDesktopMovesIt) {
  ViewDesktop desktop;
  const QSize size = MainWindow()->size();
  desktop.MoveWindow(35, 25);
  const auto place = desktop.WindowRect();
  ASSERT_TRUE(place);
  EXPECT_EQ(place->lLeft, 35);
  EXPECT_EQ(place->lTop, 25);
  EXPECT_EQ(place->lRight, 35 + size.width());
  EXPECT_EQ(place->lBottom, 25 + size.height());
  EXPECT_EQ(frmGlidetrak.Left, 525);
}

TEST_F(Window, TheDesktopKnowsTheMonitor) {
  ViewDesktop desktop;
  const auto monitor = desktop.NearestMonitor();
  const auto workArea = desktop.WorkArea();
  ASSERT_TRUE(monitor && workArea);
  EXPECT_EQ(monitor->lRight - monitor->lLeft, Pixels(screen.Width));
  EXPECT_EQ(monitor->lBottom - monitor->lTop, Pixels(screen.Height));
  EXPECT_LE(workArea->lBottom - workArea->lTop, monitor->lBottom - monitor->lTop);
}

TEST_F(Window, TheDesktopKnowsWhetherItIsActive) {
  ViewDesktop desktop;
  EXPECT_FALSE(desktop.IsMainWindowActive());
  Show();
  EXPECT_TRUE(desktop.IsMainWindowActive());
}

TEST_F(Window, ACloseMayBeRefused) {
  Show();
  QStringList aNotes;
  bool bRefuse = true;
  frmGlidetrak.QueryUnload = [&](bool& bCancel) {
    aNotes.append("query");
    bCancel = bRefuse;
  };
  frmGlidetrak.FormUnload = Note(aNotes, "unload");
  EXPECT_FALSE(MainWindow()->close());
  EXPECT_TRUE(MainWindow()->isVisible());
  EXPECT_EQ(aNotes, QStringList{"query"});
  bRefuse = false;
  frmGlidetrak.Unload();
  EXPECT_FALSE(MainWindow()->isVisible());
  EXPECT_FALSE(frmGlidetrak.Visible);
  EXPECT_EQ(aNotes, QStringList({"query", "query", "unload"}));
}

TEST_F(Window, ASecondCloseDuringTheFirstDoesNothing) {
  Show();
  int iUnloads = 0;
  frmGlidetrak.FormUnload = [&] {
    ++iUnloads;
    MainWindow()->close();
    EXPECT_TRUE(MainWindow()->isVisible());
  };
  MainWindow()->close();
  EXPECT_EQ(iUnloads, 1);
}

/// Nothing but the station ends the process, least of all a box that closes over a hidden window.
TEST_F(Window, TheLastOneToCloseDoesNotEndTheProgram) {
  EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
}

TEST_F(Window, OfTheAboutBoxIsOwnedAndFixed) {
  Show();
  frmAbout.Left = 1500;
  frmAbout.Top = 750;
  frmAbout.Show();
  QWidget* pAbout = AboutWindow();
  EXPECT_TRUE(pAbout->isVisible());
  EXPECT_FALSE(pAbout->isModal());
  EXPECT_EQ(pAbout->parentWidget(), MainWindow());
  EXPECT_EQ(pAbout->geometry().topLeft(), QPoint(100, 50));
  EXPECT_EQ(pAbout->size(), QSize(349, 216));
  EXPECT_EQ(pAbout->minimumSize(), pAbout->maximumSize());
  frmAbout.Unload();
  EXPECT_FALSE(pAbout->isVisible());
}

TEST_F(Window, OfTheAboutBoxMayBeModal) {
  Show();
  QStringList aNotes;
  frmAbout.FormUnload = Note(aNotes, "unload");
  QTimer::singleShot(0, MainWindow(), [&] {
    aNotes.append(AboutWindow()->isModal() ? "modal" : "not modal");
    frmAbout.Unload();
  });
  frmAbout.ShowModal();
  EXPECT_EQ(aNotes, QStringList({"modal", "unload"}));
  frmAbout.Show();
  EXPECT_FALSE(AboutWindow()->isModal());
}

TEST_F(Window, AShownAboutBoxMayBecomeModal) {
  Show();
  frmAbout.Show();
  QTimer::singleShot(0, MainWindow(), [] {
    EXPECT_EQ(QApplication::activeModalWidget(), AboutWindow());
    frmAbout.Unload();
  });
  frmAbout.ShowModal();
  EXPECT_FALSE(AboutWindow()->isVisible());
}

TEST_F(Window, AnEmptyTitleIsNotReplacedByTheToolkit) {
  frmAbout.Caption = "title";
  EXPECT_EQ(AboutWindow()->windowTitle(), "title");
  frmAbout.Caption = "";
  EXPECT_EQ(AboutWindow()->windowTitle(), " ");
}

TEST_F(Window, AMinimisedOneStaysSoWhenItIsGivenTheFocus) {
  Show();
  frmGlidetrak.WindowState = stateMinimised;
  frmGlidetrak.SetFocus();
  Settle();
  EXPECT_TRUE(MainWindow()->isMinimized());
  EXPECT_EQ(frmGlidetrak.WindowState, stateMinimised);
  MainWindow()->ComeForward();
  EXPECT_FALSE(MainWindow()->isMinimized());
}

/// The start-up box gives the main window the focus in its sixth second, whatever is open then.
TEST_F(Window, ABoxKeepsTheFocusWhenAFormIsGivenIt) {
  Show();
  const std::function<void()> aRoads[] = {[] { frmGlidetrak.SetFocus(); },
                                          [] { MainWindow()->ComeForward(); }};
  for (const auto& giveFocus : aRoads) {
    bool bBoxActive = false;
    QTimer::singleShot(0, MainWindow(), [&] {
      QWidget* pBox = QApplication::activeModalWidget();
      giveFocus();
      Settle();
      bBoxActive = pBox->isActiveWindow();
      EXPECT_EQ(pBox->parentWidget(), MainWindow());
      pBox->close();
    });
    ViewDesktop().ShowBox("text", "title", BoxIcon::Exclamation, BoxButtons::Ok);
    EXPECT_TRUE(bBoxActive);
  }
}

/// A box that hung on a minimised window would be minimised with it.
TEST_F(Window, ABoxOfAMinimisedOneStandsAlone) {
  Show();
  frmGlidetrak.WindowState = stateMinimised;
  QTimer::singleShot(0, MainWindow(), [&] {
    EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(), nullptr);
    QApplication::activeModalWidget()->close();
  });
  ViewDesktop().ShowBox("text", "title", BoxIcon::Exclamation, BoxButtons::Ok);
}

TEST_F(Window, AMaximisedOneKeepsItsNormalSize) {
  frmGlidetrak.Width = 15000;
  frmGlidetrak.Height = 10500;
  frmGlidetrak.Left = 300;
  frmGlidetrak.Top = 450;
  frmGlidetrak.WindowState = stateMaximised;
  Show();
  Settle();
  EXPECT_TRUE(MainWindow()->isMaximized());
  const auto normal = ViewDesktop().NormalRect();
  ASSERT_TRUE(normal.has_value());
  EXPECT_EQ(MainWindow()->normalGeometry(), QRect(20, 30, 1000, 700));
}

}  // namespace
}  // namespace glidetrak
