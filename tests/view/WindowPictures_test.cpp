// Pictures of the whole window, for the eye; each must at least show more than one colour.

#include <QDir>
#include <QSet>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class WindowPictures : public ViewTest {
 protected:
  /// Every tenth pixel counts its colours.
  static int Colours(const QImage& image) {
    QSet<QRgb> aColours;
    for (int iY = 0; iY < image.height(); iY += 10) {
      for (int iX = 0; iX < image.width(); iX += 10) aColours.insert(image.pixel(iX, iY));
    }
    return static_cast<int>(aColours.size());
  }

  static void Keep(QWidget* pWindow, const QString& sName) {
    Settle();
    const QDir folder(GLIDETRAK_VIEW_PICTURES);
    ASSERT_TRUE(folder.mkpath("."));
    const QImage image = pWindow->grab().toImage();
    EXPECT_GT(Colours(image), 20);
    EXPECT_TRUE(image.save(folder.filePath(sName + ".png")));
  }
};

TEST_F(WindowPictures, ShowTheDesign) {
  Show();
  Keep(MainWindow(), "design");
}

TEST_F(WindowPictures, ShowTheProgramBox) {
  txtProgram.SetText("PRINT \"Hello World\"\r\nWAIT 3000\r\nPOWER 10\r\nbare\nand\rodd" +
                     QString(QChar(0)));
  txtProgram.Select(21, 9);
  txtProgram.Width = 4260;
  txtProgram.Height = 5600;
  imgProgBoxBack.Left = 0;
  ShowEditor();
  txtProgram.Enabled = false;
  Keep(MainWindow(), "program-box");
}

TEST_F(WindowPictures, ShowTheFloatingPanels) {
  Show();
  pnlCommandSel.Visible = true;
  lstProgCommands.List = QStringList{"PRINT ", "BREAK", "LABEL "};
  Keep(MainWindow(), "command-selection");
  pnlCommandSel.Visible = false;
  pnlDebug.Visible = true;
  Keep(MainWindow(), "debug");
  pnlDebug.Visible = false;
  pnlMessage.Visible = true;
  lblMessage.Caption = "Hello World";
  Keep(MainWindow(), "message");
}

TEST_F(WindowPictures, ShowTheAboutBox) {
  Show();
  lblProgName.Caption = "Glidetrak Control";
  frmAbout.Show();
  Keep(AboutWindow(), "about");
}

}  // namespace
}  // namespace glidetrak
