#pragma once

#include <QRect>

namespace kalimbo::ui {

// Window geometry is designed in twips (1440 per inch); at 96 dpi a pixel is 15 twips. Qt scales
// these logical pixels for high-dpi screens.
constexpr int px(int twips) {
    return (twips * 2 + 15) / 30;
}  // rounded to the nearest pixel

constexpr QRect rechteck(int links, int oben, int breite, int hoehe) {
    return {px(links), px(oben), px(breite), px(hoehe)};
}

}  // namespace kalimbo::ui
