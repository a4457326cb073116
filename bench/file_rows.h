// The files of the file rows, for their peers.
#pragma once

#include <string>

namespace bench {

std::string picture_file();                       // pictures().picture as a BMP of 24 bits
std::string saved_file(const std::string& peer);  // where that peer writes one

}  // namespace bench
