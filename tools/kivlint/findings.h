// What kivlint found: one line per finding, "file:line: error: text" (or warning), in the order
// found, and the count of errors that decides the exit status.
#pragma once
#include <string>

namespace kivlint {

class Findings {
public:
    void Error(const std::string& file, int line, const std::string& text) { Add(file, line, "error", text), ++m_errors; }
    void Warning(const std::string& file, int line, const std::string& text) { Add(file, line, "warning", text), ++m_warnings; }
    int Errors() const { return m_errors; }
    int Warnings() const { return m_warnings; }

private:
    void Add(const std::string& file, int line, const char* kind, const std::string& text);
    int m_errors = 0;
    int m_warnings = 0;
};

}  // namespace kivlint
