#pragma once

namespace kalimbo {

// The product and its version as the About box, "--version" and the footer of exported texts
// name them.
inline constexpr const char* Produktname = "Kalimbo";
inline constexpr const char* Versionszeile = "Version: zorb 5.0.1 [04.08.2006]";

}  // namespace kalimbo
