#pragma once

#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo::cli {

// Wrong use of the command line: the message (may be empty) is printed with the usage, exit 2.
class Gebrauchsfehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The arguments of one command split into positional ones, "--name value" options (an option
// given twice has both values, in order) and "--name" switches.
struct Aufruf {
    std::vector<std::string> werte;
    std::multimap<std::string, std::string> optionen;
    std::set<std::string> schalter;

    bool hat(const std::string& schalterName) const { return schalter.count(schalterName) > 0; }
    // Every value of option `name`, in the order given.
    std::vector<std::string> alle(const std::string& name) const;
    // The first value of option `name`; none when it is not given.
    std::optional<std::string> option(const std::string& name) const;
};

// Splits `argumente`; `mitWert` names the options that take a value, `schalter` the switches.
// Throws Gebrauchsfehler for an unknown option or an option without its value.
Aufruf zerlege(const std::vector<std::string>& argumente, const std::vector<std::string>& mitWert,
               const std::vector<std::string>& schalter = {});

// Throws Gebrauchsfehler unless exactly `anzahl` positional arguments were given.
void erwarteWerte(const Aufruf& a, std::size_t anzahl);

// A whole number argument in minimum..maximum; throws Gebrauchsfehler naming `was` otherwise.
int ganzeZahl(const std::string& text, int minimum, int maximum, const std::string& was);

}  // namespace kalimbo::cli
