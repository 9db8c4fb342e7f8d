#pragma once

#include <string>

namespace kalimbo {

// `text` with the five characters that XML and HTML reserve written as entities (the apostrophe
// as "&#39;", which both understand), so that it can stand in element text and attribute values.
std::string xmlMaskiert(const std::string& text);

}  // namespace kalimbo
