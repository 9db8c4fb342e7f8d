// This program's global operator new counts every allocation and fails one on request: the evaluation runs on
// every goal click and must not touch the heap; a lack of memory ends a command with a German message.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <sstream>

#include "cli/befehle.h"
#include "scoring/auswahl.h"
#include "scoring/auswertung.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace {
std::atomic<long> anforderungen{0};
std::atomic<bool> naechsteScheitert{false};
}  // namespace

void* operator new(std::size_t groesse) {
    anforderungen.fetch_add(1, std::memory_order_relaxed);
    if (naechsteScheitert.exchange(false)) throw std::bad_alloc();
    if (void* p = std::malloc(groesse == 0 ? 1 : groesse)) return p;
    throw std::bad_alloc();
}
// The nothrow form too (std::stable_sort's buffer uses it), so that every operator delete below frees only
// what malloc gave; the sanitizers' own nothrow new would not pair with free().
void* operator new(std::size_t groesse, const std::nothrow_t&) noexcept {
    try {
        return operator new(groesse);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
// Not inlined: gcc would otherwise see free() on what operator new returned and warn of a mismatch
// (-Wmismatched-new-delete), not knowing that this operator new takes its memory from malloc().
[[gnu::noinline]] void operator delete(void* p) noexcept {
    std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}

namespace kalimbo {
namespace {

TEST(Speicher, AuswertungHoltNichtsVomHeap) {
    Spielstand s;
    s.oeffne(test::saison(test::Saison20));  // team names longer than a string holds in place
    for (int p = 0; p < MaxSpieler; ++p)
        for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
            for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel)
                s.Tipp[p][tag][spiel] = {
                    {static_cast<i16>((p + spiel) % 4), static_cast<i16>((tag + p) % 3)}};
    waehleAlle(s);
    s.AktSpieltagGlobal = 37;
    werteAus(s, true);  // the table takes over the team names once

    const long vorher = anforderungen.load();
    werteAus(s, true);
    werteAus(s, false);
    EXPECT_EQ(anforderungen.load() - vorher, 0);
    EXPECT_GT(s.getGesamtPunkte(0), 0);

    const long probe = anforderungen.load();
    int* volatile zahl = new int(1);  // the counter does see allocations
    delete zahl;
    EXPECT_EQ(anforderungen.load() - probe, 1);
}

TEST(Speicher, AuchOhneSpeicherEineDeutscheMeldung) {
    test::TempOrdner ordner;
    const std::vector<std::string> aufruf{"info", (ordner / "spiel.tip").string()};
    speichereSpieldatei(aufruf[1], Dateiinhalt{});
    std::ostringstream aus, fehler;
    naechsteScheitert = true;
    EXPECT_EQ(cli::fuehreAus(aufruf, aus, fehler), 1);
    EXPECT_EQ(fehler.str(), "Fehler: Nicht genug Arbeitsspeicher; der Vorgang wurde abgebrochen.\n");
}

}  // namespace
}  // namespace kalimbo
