#pragma once

#include <QString>

#include <string>

namespace vistrel::qt {

// The core's strings are bytes: UTF-8 where they are valid UTF-8, else the
// single-byte text of older station files.
QString fromCore(const std::string& bytes);
std::string toCore(const QString& text);

// Core captions break lines with "\r\n"; widgets with "\n".
QString toWidgetLines(const std::string& bytes);
std::string toCoreLines(const QString& text);

// A caption as a label shows it: "&&" is a literal '&', a single '&' only
// marks the accelerator and is not shown.
QString labelText(const std::string& caption);

}  // namespace vistrel::qt
