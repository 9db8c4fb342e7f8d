#!/usr/bin/env python3
# Made the files of this folder once from the shared files in ../shared/data/quellen: the
# variants of the formats the readers must take, and broken files they must refuse.
# Run from the project folder: python3 tests/data/quellen/erzeuge.py
import csv, io, json, os

QUELLE = "../shared/data/quellen/"
ZIEL = "tests/data/quellen/"

def schreibe(name, daten):
    with open(ZIEL + name, "wb") as f:
        f.write(daten if isinstance(daten, bytes) else daten.encode("utf-8"))

# The 2021/22 season as a fixture list before it began: German round names, every score gone in
# one of the three ways a match not yet played shows, one match per line.
saison = json.load(open(QUELLE + "openfootball-2021-22-de.1.json", encoding="utf-8"))
for i, spiel in enumerate(saison["matches"]):
    spiel["round"] = spiel["round"].replace("Matchday ", "") + ". Spieltag"
    if i % 3 == 0: del spiel["score"]
    elif i % 3 == 1: spiel["score"] = {}
    else: del spiel["score"]["ft"]
zeilen = [json.dumps(s, ensure_ascii=False) for s in saison["matches"]]
spielplan = '{"name": "Bundesliga 2021/22", "matches": [\n' + ",\n".join(zeilen) + "\n]}\n"
schreibe("spielplan-2021-22.json", spielplan)
schreibe("kaputt/abgeschnitten.json", "\n".join(spielplan.split("\n")[:5]))
for i, name, alt, neu in [(3, "ohne-feld", '"team2"', '"gast"'), (4, "tore", '"score": {}', '"score": {"ft": [1, -1]}'),
                          (6, "datum", '"2021-08-14"', '"2021-08-32"')]:
    kaputt = zeilen[:i] + [zeilen[i].replace(alt, neu)]
    schreibe("kaputt/%s.json" % name, '{"name": "x", "matches": [\n' + ",\n".join(kaputt) + "\n]}\n")

with open(QUELLE + "footballdata-2021-22-D1-bis-april.csv", encoding="utf-8", newline="") as f:
    kopf, *reihen = list(csv.reader(f))
spalte = {name: i for i, name in enumerate(kopf)}

def csvtext(kopfzeile, zeilen, ende="\r\n"):
    aus = io.StringIO()
    csv.writer(aus, lineterminator=ende).writerows([kopfzeile] + zeilen)
    return aus.getvalue()

def spalten(namen, zeilen):
    return [[r[spalte[n]] for n in namen] for r in zeilen]

# Matchday 2 in Windows-1252, with umlauts where the file has none.
umlaute = {"FC Koln": "FC Köln", "Greuther Furth": "Greuther Fürth", "Bayern Munich": "Bayern München",
           "M'gladbach": "Mönchengladbach"}
tag2 = [[umlaute.get(feld, feld) for feld in r] for r in reihen[9:18]]
schreibe("fd-cp1252.csv", csvtext(kopf, tag2).encode("cp1252"))
# Matchday 3 under the header of the older files, as "Home,Away,HG,AG".
alt = ["Country", "League", "Season", "Date", "Time", "Home", "Away", "HG", "AG", "Res"]
schreibe("fd-alter-kopf.csv", csvtext(alt, [["Germany", "Bundesliga", "2021/2022"] + r for r in
                                            spalten(["Date", "Time", "HomeTeam", "AwayTeam", "FTHG", "FTAG", "FTR"], reihen[18:27])]))
# Matchday 4 with a byte order mark before the column that names the home team.
bom = ["HomeTeam", "AwayTeam", "FTHG", "FTAG", "Date", "Div", "B365H", "B365D", "B365A"]
schreibe("fd-bom.csv", "\ufeff" + csvtext(bom, spalten(bom, reihen[27:36])))
# Matchdays 17 and 18 around the new year with two-digit years, LF line ends.
jj = [r[:] for r in reihen[144:162]]
for r in jj: r[spalte["Date"]] = r[spalte["Date"]][:6] + r[spalte["Date"]][8:]
schreibe("fd-jj.csv", csvtext(kopf, jj, "\n"))

# Broken files, each with one fault.
kurz = ["Div", "Date", "HomeTeam", "AwayTeam", "FTHG", "FTAG"]
erste = spalten(kurz, reihen[:3])
schreibe("kaputt/spalten.csv", csvtext(kopf, [reihen[0], reihen[1][:20]]))
schreibe("kaputt/tore.csv", csvtext(kurz, [erste[0], erste[1][:4] + ["100", "0"]]))
schreibe("kaputt/datum.csv", csvtext(kurz, [erste[0], erste[1][:1] + ["29/02/22"] + erste[1][2:]]))
schreibe("kaputt/doppelt.csv", csvtext(kurz, erste + [erste[0][:4] + ["0", "3"]]))
schreibe("kaputt/leer.csv", "")
# Names that meet no team or the same team as another name.
schreibe("unklar.csv", csvtext(kurz, [["D1", "07/05/2022", a, b, "1", "0"] for a, b in
                                      [("Borussia", "Augsburg"), ("Köln", "Mainz"), ("FC Koln", "Freiburg")]]))
# One result typed by hand, unlike the real one, in the project's own season CSV.
schreibe("von-hand.csv", "matchday,home,away,home_goals,away_goals\n"
                         "1,Borussia Mönchengladbach,FC Bayern München,3,0\n")
