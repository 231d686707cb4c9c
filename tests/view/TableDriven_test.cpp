// A form of the test's own: the view draws what its table says, whatever the controls are called.

#include <QLabel>
#include <QLineEdit>

#include "view/ControlWidgets.h"
#include "view/Units.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

constexpr Font fontPlain{"Verdana", 8.25F, false};
constexpr Style styleText{};

class TableDriven : public ViewTest {
 protected:
  TableDriven() {
    for (Control* pControl : std::initializer_list<Control*>{&m_top, &m_low, &m_lowest, &m_first,
                                                             &m_second, &m_keeper}) {
      pControl->Width = 1500;
      pControl->Height = 600;
    }
    m_window.resize(400, 300);
  }

  void Make(const std::vector<ControlRow>& rows) {
    MakeControls(rows, &m_window, *new FocusKeeper(&m_window));
    m_window.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
  }

  ControlRow Row(const char* sName, const ControlRef& control, const Style& style = styleText,
                 Layer layer = Layer::Front, Role role = Role::None, Control* pTabFrom = nullptr) {
    return {sName, control, 1, &m_form, 0, 0, 0, 0, fontPlain, style, layer, role, pTabFrom};
  }

  template <class Kind>
  Kind* Find(const char* sName) {
    return m_window.findChild<Kind*>(sName);
  }

  Form m_form;
  Image m_top, m_low, m_lowest;
  TextBox m_first, m_second, m_keeper;
  QWidget m_window;  ///< goes ahead of its controls
};

TEST_F(TableDriven, LayersLieOverEachOtherWhateverTheOrderOfTheRows) {
  Make({Row("top", &m_top), Row("lowest", &m_lowest, styleText, Layer::Background),
        Row("low", &m_low, styleText, Layer::Behind)});
  EXPECT_EQ(m_window.childAt(5, 5), Find<QWidget>("top"));
  m_top.Visible = false;
  EXPECT_EQ(m_window.childAt(5, 5), Find<QWidget>("low"));
  m_low.Visible = false;
  EXPECT_EQ(m_window.childAt(5, 5), Find<QWidget>("lowest"));
}

TEST_F(TableDriven, ATextBoxHasTheLinesAndTheScrollBarOfItsStyle) {
  Make({Row("line", &m_first, {.bOneLine = true}), Row("bar", &m_second, {.bScrollBar = true}),
        Row("plain", &m_keeper)});
  EXPECT_NE(Find<QLineEdit>("line"), nullptr);
  const auto* pBar = Find<QPlainTextEdit>("bar");
  const auto* pPlain = Find<QPlainTextEdit>("plain");
  ASSERT_TRUE(pBar != nullptr && pPlain != nullptr);
  EXPECT_EQ(pBar->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
  EXPECT_EQ(pPlain->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

TEST_F(TableDriven, ABorderIsDrawnRoundWhatHasOne) {
  PictureBox bordered, plain;
  for (PictureBox* pBox : {&bordered, &plain}) {
    pBox->Width = 300;
    pBox->Height = 300;
  }
  Make({Row("bordered", &bordered, {.bBorder = true}), Row("plain", &plain)});
  const auto corner = [this](const char* sName) {
    return Find<QWidget>(sName)->grab().toImage().pixelColor(0, 0);
  };
  EXPECT_EQ(corner("bordered"), ColourOf(lGrey));
  EXPECT_EQ(corner("plain"), ColourOf(lPanelBackground));
  delete Find<QWidget>("bordered");
  delete Find<QWidget>("plain");
}

TEST_F(TableDriven, TheFocusOfWhatGoesAwayComesToTheControlInThatRole) {
  Make({Row("keeper", &m_keeper, {.bOneLine = true}, Layer::Front, Role::FocusKeeper),
        Row("first", &m_first), Row("second", &m_second)});
  m_first.SetFocus();
  m_first.Enabled = false;
  EXPECT_TRUE(Find<QWidget>("keeper")->hasFocus());
}

TEST_F(TableDriven, TabGoesWhereTheRowSays) {
  Make({Row("first", &m_first, {.bOneLine = true}), Row("second", &m_second, {.bOneLine = true}),
        Row("keeper", &m_keeper, {.bOneLine = true}, Layer::Front, Role::None, &m_first)});
  m_first.SetFocus();
  QTest::keyClick(Find<QWidget>("first"), Qt::Key_Tab);
  EXPECT_TRUE(Find<QWidget>("keeper")->hasFocus());
}

}  // namespace
}  // namespace glidetrak
