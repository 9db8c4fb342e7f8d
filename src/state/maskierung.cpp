#include "maskierung.h"

namespace kalimbo {

std::string xmlMaskiert(const std::string& text) {
    std::string aus;
    aus.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '&':
                aus += "&amp;";
                break;
            case '<':
                aus += "&lt;";
                break;
            case '>':
                aus += "&gt;";
                break;
            case '"':
                aus += "&quot;";
                break;
            case '\'':
                aus += "&#39;";
                break;
            default:
                aus += c;
        }
    }
    return aus;
}

}  // namespace kalimbo
