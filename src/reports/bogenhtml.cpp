#include "bogenhtml.h"

#include "state/maskierung.h"

namespace kalimbo {

namespace {

constexpr const char* Stil =
    "body{font-family:Arial,Helvetica,sans-serif;color:#000000;background:#ffffff;margin:2em}\n"
    "h1{font-size:1.5em;margin:0}\n"
    "h2{font-size:1.2em;margin:.3em 0 .8em}\n"
    "table{border-collapse:collapse}\n"
    "th,td{border:1px solid #000000;padding:.25em .6em}\n"
    ".heim{text-align:right;border-right:none}\n"
    ".strich{text-align:center;border-left:none;border-right:none;padding:.25em 0}\n"
    ".gast{text-align:left;border-left:none}\n"
    ".zahl{text-align:center;min-width:3em}\n"
    "tr.erste>*{border-top:3px double #000000}\n"
    "p.fuss{font-size:.8em;margin-top:2em}\n";

std::string hex(Farbe farbe) {
    constexpr const char* Ziffern = "0123456789abcdef";
    std::string text = "#";
    for (int verschiebung = 0; verschiebung <= 16; verschiebung += 8) {
        const int kanal = (farbe >> verschiebung) & 0xFF;
        text += Ziffern[kanal >> 4];
        text += Ziffern[kanal & 0xF];
    }
    return text;
}

std::string zelle(const Bogenzelle& z) {
    const std::string stil = z.hintergrund == Weiss ? "" : " style=\"background:" + hex(z.hintergrund) + '"';
    return "<td class=\"zahl\"" + stil + '>' + xmlMaskiert(z.text) + "</td>";
}

}  // namespace

std::string bogenAlsHtml(const Spieltagsbogen& b) {
    std::string h = "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\"/>\n<title>" +
                    xmlMaskiert(b.liga) + " – " + xmlMaskiert(b.titel) + "</title>\n<style>\n" + Stil +
                    "</style>\n</head>\n<body>\n<h1>" + xmlMaskiert(b.liga) + "</h1>\n<h2>" +
                    xmlMaskiert(b.titel) + " – " + xmlMaskiert(b.art) +
                    "</h2>\n<table>\n<thead>\n<tr><th class=\"heim\">Heim</th>"
                    "<th class=\"strich\"></th><th class=\"gast\">Gast</th><th class=\"zahl\">Ergebnis</th>";
    for (const auto& sp : b.spieler)
        h += "<th class=\"zahl\" style=\"color:" + hex(sp.farbe) + "\">" + xmlMaskiert(sp.name) + "</th>";
    h += "</tr>\n</thead>\n<tbody>\n";
    for (const auto& spiel : b.spiele) {
        h += "<tr><td class=\"heim\">" + xmlMaskiert(spiel.heim) +
             "</td><td class=\"strich\">–</td><td class=\"gast\">" + xmlMaskiert(spiel.gast) + "</td>" +
             zelle(spiel.ergebnis);
        for (const auto& tipp : spiel.tipps)
            h += zelle(tipp);
        h += "</tr>\n";
    }
    for (std::size_t r = 0; r < b.summen.size(); ++r) {
        h += std::string(r == 0 ? "<tr class=\"erste\">" : "<tr>") + "<th class=\"heim\" colspan=\"4\">" +
             xmlMaskiert(b.summen[r].titel) + "</th>";
        for (const auto& wert : b.summen[r].werte)
            h += "<td class=\"zahl\">" + xmlMaskiert(wert) + "</td>";
        h += "</tr>\n";
    }
    h += "</tbody>\n</table>\n<p class=\"fuss\">" + xmlMaskiert(b.fussnote) + " – " + xmlMaskiert(b.datum) +
         "</p>\n</body>\n</html>\n";
    return h;
}

}  // namespace kalimbo
