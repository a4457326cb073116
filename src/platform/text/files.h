// Text files by number, and the operations on whole files. A failure is a RuntimeError: 52 bad file number, 53 no such
// file, 54 wrong mode for the call, 55 number already in use, 57 device error, 58 file already exists, 61 disk full, 62
// past the end, 67 too many open files, 70 permission denied, 74 rename to another disk, 75 a folder or another thing
// that is no file, 76 no such folder.
//
// A file that is written takes its name when it is whole and on the disk, in one step: until then, and after a failure,
// the old file stands as it was. Reading one above 64 MB is error 7.
#pragma once

#include <exception>
#include <string>

#include "platform/text/encoding.h"

namespace text {

enum class Mode { Input, Output };

// Opens a text file under a number from 1 to 511. Input reads it whole, Output begins a new file, which is written by
// Close in the given encoding (see encode).
void Open(const std::string& path, Mode mode, int number, Encoding encoding = Encoding::utf8);

// The next line, without its end.
std::string LineInput(int number);

// Adds a line, ended by CR LF.
void Print(int number, const std::string& line);

// Ends the use of a number; one that is not open is no error. The number is free even if writing fails.
void Close(int number);

// Frees a number at the end of the scope. What was printed to it and not closed by then is dropped, so that a run that
// an error ends leaves no half file.
struct NumberScope {
  explicit NumberScope(int number_) : number(number_) {}
  ~NumberScope();
  NumberScope(const NumberScope&) = delete;
  NumberScope& operator=(const NumberScope&) = delete;
  const int number;

 private:
  const int exceptions_before_ = std::uncaught_exceptions();
};

// The file that was being read when the error came up that is on its way out, or was on it last; "" for none.
std::string interrupted_file();

// The encoding of the file at a path, to write the one that replaces it; UTF-8 if it can not be read.
Encoding encoding_of(const std::string& path);

// The file's name without its folders if there is a file (not a folder) at the path, else "".
std::string Dir(const std::string& path);

// Removes a file.
void Kill(const std::string& path);

// Copies a file byte for byte, over an old one too.
void FileCopy(const std::string& from, const std::string& to);

// Gives a file a name that no other has.
void Name(const std::string& from, const std::string& to);

// Gives a file the name, the mode and the owner of another one, which it replaces in one step, so that there is always
// a file of that name. A file that may not be written may not be replaced either.
void Replace(const std::string& from, const std::string& to);

}  // namespace text
