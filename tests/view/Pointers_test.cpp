// The mouse pointer, control by control and over the whole screen.

#include <QGuiApplication>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

using Pointers = ViewTest;

Qt::CursorShape ShapeOf(const QWidget* pWidget) {
  return pWidget->cursor().shape();
}

TEST_F(Pointers, ShowTheControlsShape) {
  const QWidget* pLever = Widget("imgLever");
  imgLever.MousePointer = ptrNorthSouth;
  EXPECT_EQ(ShapeOf(pLever), Qt::SizeVerCursor);
  imgLever.MousePointer = ptrNoDrop;
  EXPECT_EQ(ShapeOf(pLever), Qt::ForbiddenCursor);
  imgLever.MousePointer = ptrHourglass;
  EXPECT_EQ(ShapeOf(pLever), Qt::WaitCursor);
  imgLever.MousePointer = ptrDefault;
  EXPECT_EQ(ShapeOf(pLever), Qt::ArrowCursor);
}

TEST_F(Pointers, TheCustomOneIsTheControlsIcon) {
  const QWidget* pLever = Widget("imgLever");
  EXPECT_EQ(ShapeOf(pLever), Qt::ArrowCursor);
  imgLever.MouseIcon = PictureId::HandCursor;
  EXPECT_EQ(ShapeOf(pLever), Qt::BitmapCursor);
  imgLever.MousePointer = ptrNoDrop;
  EXPECT_EQ(ShapeOf(pLever), Qt::ForbiddenCursor);
  imgLever.MousePointer = ptrCustom;
  EXPECT_EQ(ShapeOf(pLever), Qt::BitmapCursor);
  EXPECT_EQ(ShapeOf(Widget("lblTimer")), Qt::ArrowCursor);
}

TEST_F(Pointers, OfTheFormIsThatOfItsBackground) {
  frmGlidetrak.MouseIcon = PictureId::HandCursor;
  EXPECT_EQ(ShapeOf(MainWindow()->Client()), Qt::ArrowCursor);
  frmGlidetrak.MousePointer = ptrCustom;
  EXPECT_EQ(ShapeOf(MainWindow()->Client()), Qt::BitmapCursor);
}

TEST_F(Pointers, TheEditorKeepsItsCaretPointer) {
  EXPECT_EQ(ShapeOf(Editor()->viewport()), Qt::IBeamCursor);
  txtProgram.MousePointer = ptrHourglass;
  EXPECT_EQ(ShapeOf(Editor()->viewport()), Qt::WaitCursor);
  txtProgram.MousePointer = ptrDefault;
  EXPECT_EQ(ShapeOf(Editor()->viewport()), Qt::IBeamCursor);
}

TEST_F(Pointers, TheScreensOverridesAllAndIsTakenBack) {
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  screen.MousePointer = ptrHourglass;
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  screen.MousePointer = ptrNoDrop;
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ForbiddenCursor);
  screen.MousePointer = ptrDefault;
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace glidetrak
