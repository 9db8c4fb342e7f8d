#include "reports/bogenhtml.h"

#include <gtest/gtest.h>

#include "kurzesspiel.h"
#include "scoring/auswertung.h"

namespace kalimbo {
namespace {

// The whole page of the small game's second matchday, with Carl renamed to show the escaping.
TEST(BogenHtml, EineSeiteMitInlineStilUndFarbenWieAufDemSchirm) {
    Spielstand s = test::kurzesSpiel();
    s.Tipp[2][1][0] = {{3, 2}};
    s.Spielername[2] = "<Carl>";
    werteAus(s, false);
    EXPECT_EQ(bogenAlsHtml(erstelleBogen(s, 1, Bogenart::Auswertung, "24.12.2024")), R"(<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="utf-8"/>
<title>Testliga 2024/25 – Spieltag 2</title>
<style>
body{font-family:Arial,Helvetica,sans-serif;color:#000000;background:#ffffff;margin:2em}
h1{font-size:1.5em;margin:0}
h2{font-size:1.2em;margin:.3em 0 .8em}
table{border-collapse:collapse}
th,td{border:1px solid #000000;padding:.25em .6em}
.heim{text-align:right;border-right:none}
.strich{text-align:center;border-left:none;border-right:none;padding:.25em 0}
.gast{text-align:left;border-left:none}
.zahl{text-align:center;min-width:3em}
tr.erste>*{border-top:3px double #000000}
p.fuss{font-size:.8em;margin-top:2em}
</style>
</head>
<body>
<h1>Testliga 2024/25</h1>
<h2>Spieltag 2 – Auswertung</h2>
<table>
<thead>
<tr><th class="heim">Heim</th><th class="strich"></th><th class="gast">Gast</th><th class="zahl">Ergebnis</th><th class="zahl" style="color:#c80000">Anna</th><th class="zahl" style="color:#0000c8">&lt;Carl&gt;</th></tr>
</thead>
<tbody>
<tr><td class="heim">Bochum</td><td class="strich">–</td><td class="gast">Aachen</td><td class="zahl">2:1</td><td class="zahl" style="background:#ff0000">2:1</td><td class="zahl" style="background:#fafa90">3:2</td></tr>
<tr><td class="heim">Dresden</td><td class="strich">–</td><td class="gast">Cottbus</td><td class="zahl">1:1</td><td class="zahl">2:1</td><td class="zahl" style="background:#ff0000">1:1</td></tr>
<tr><td class="heim">Fürth</td><td class="strich">–</td><td class="gast">Rot &amp; Weiß Essen</td><td class="zahl">0:3</td><td class="zahl" style="background:#30be30">0:12</td><td class="zahl" style="background:#ff0000">0:3</td></tr>
<tr class="erste"><th class="heim" colspan="4">Punkte Spieltag</th><td class="zahl">4</td><td class="zahl">8</td></tr>
<tr><th class="heim" colspan="4">Platz Spieltag</th><td class="zahl">2</td><td class="zahl">1</td></tr>
<tr><th class="heim" colspan="4">Punkte gesamt</th><td class="zahl">7</td><td class="zahl">11</td></tr>
<tr><th class="heim" colspan="4">Platz gesamt</th><td class="zahl">2</td><td class="zahl">1</td></tr>
</tbody>
</table>
<p class="fuss">automatisch erstellt mit &#39;Kalimbo&#39; - Version 5.0.1 – 24.12.2024</p>
</body>
</html>
)");
}

}  // namespace
}  // namespace kalimbo
