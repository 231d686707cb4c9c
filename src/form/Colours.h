#pragma once

// Colours are 24-bit values with red in the low byte.

namespace glidetrak {

constexpr int Rgb(int iRed, int iGreen, int iBlue) {
  return iRed | iGreen << 8 | iBlue << 16;
}

constexpr int lBlack = 0;
constexpr int lWhite = Rgb(255, 255, 255);
constexpr int lGrey = Rgb(192, 192, 192);
constexpr int lChosenYellow = Rgb(192, 192, 0);    ///< the mode and direction in force
constexpr int lButtonText = Rgb(220, 220, 214);    ///< an image button's text at design
constexpr int lPanelBackground = Rgb(60, 57, 70);  ///< the form and its two left panels
constexpr int lLampRed = 223;
constexpr int lLampYellow = 1233395;
constexpr int lLampGreen = 57088;
constexpr int lTestedLampRed = 255;  ///< an input lamp lit by a statement's own test

}  // namespace glidetrak
