#include "zahlformat.h"

#include <charconv>
#include <cstdlib>

namespace kalimbo {

namespace {

constexpr int Stellen = 15;

// A number as sign, digits before and digits after the decimal point, without an exponent.
struct Dezimaltext {
    bool negativ = false;
    std::string ganz;
    std::string bruch;
};

// `wert` with 15 significant digits, written out in full.
Dezimaltext mitFuenfzehnStellen(double wert) {
    char puffer[32];
    const auto ende =
        std::to_chars(puffer, puffer + sizeof puffer, wert, std::chars_format::scientific, Stellen - 1).ptr;
    // "-d.dddddddddddddde+XX"
    std::string_view text(puffer, static_cast<std::size_t>(ende - puffer));
    Dezimaltext d;
    if (text.front() == '-') {
        d.negativ = true;
        text.remove_prefix(1);
    }
    const std::size_t e = text.find('e');
    std::string ziffern = std::string(text.substr(0, 1)) + std::string(text.substr(2, e - 2));
    const int punkt = std::atoi(std::string(text.substr(e + 1)).c_str()) + 1;  // digits before the point
    if (punkt <= 0) {
        d.ganz = "0";
        d.bruch = std::string(static_cast<std::size_t>(-punkt), '0') + ziffern;
    } else if (punkt >= Stellen) {
        d.ganz = ziffern + std::string(static_cast<std::size_t>(punkt - Stellen), '0');
    } else {
        d.ganz = ziffern.substr(0, static_cast<std::size_t>(punkt));
        d.bruch = ziffern.substr(static_cast<std::size_t>(punkt));
    }
    return d;
}

// Adds one unit in the last digit of a string of decimal digits.
void erhoeheUmEins(std::string& ziffern) {
    for (auto i = ziffern.size(); i-- > 0;) {
        if (ziffern[i] != '9') {
            ++ziffern[i];
            return;
        }
        ziffern[i] = '0';
    }
    ziffern.insert(ziffern.begin(), '1');
}

// Cuts the fraction to `stellen` digits, rounding half away from zero.
void runde(Dezimaltext& d, std::size_t stellen) {
    if (d.bruch.size() <= stellen) return;
    const bool aufrunden = d.bruch[stellen] >= '5';
    d.bruch.resize(stellen);
    if (!aufrunden) return;
    std::string alle = d.ganz + d.bruch;
    erhoeheUmEins(alle);
    d.ganz = alle.substr(0, alle.size() - stellen);
    d.bruch = alle.substr(alle.size() - stellen);
}

std::string zusammen(const Dezimaltext& d, std::string_view trenner) {
    const bool null = d.ganz.find_first_not_of('0') == std::string::npos &&
                      d.bruch.find_first_not_of('0') == std::string::npos;
    std::string text = (d.negativ && !null) ? "-" : "";
    text += d.ganz;
    if (!d.bruch.empty()) {
        text += trenner;
        text += d.bruch;
    }
    return text;
}

void entferneNullenBis(std::string& bruch, std::size_t mindestens) {
    while (bruch.size() > mindestens && bruch.back() == '0')
        bruch.pop_back();
}

}  // namespace

std::string formatiereZahl(double wert, int minDezimalen, int maxDezimalen, std::string_view trenner) {
    Dezimaltext d = mitFuenfzehnStellen(wert);
    runde(d, static_cast<std::size_t>(maxDezimalen));
    d.bruch.resize(static_cast<std::size_t>(maxDezimalen), '0');
    entferneNullenBis(d.bruch, static_cast<std::size_t>(minDezimalen));
    return zusammen(d, trenner);
}

std::string allgemeineZahl(double wert, std::string_view trenner) {
    Dezimaltext d = mitFuenfzehnStellen(wert);
    entferneNullenBis(d.bruch, 0);
    return zusammen(d, trenner);
}

}  // namespace kalimbo
