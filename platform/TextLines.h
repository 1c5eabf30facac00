// TextLines.h: converts between the bytes of a text file and its lines, wherever files are kept.
// Written are Windows-1252 and CR LF; LF or CR alone is read too.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace malvone {

// Collects the first lines of a file from blocks of its bytes.
class LineCollector
{
public:
    LineCollector(std::size_t wanted, std::vector<std::string>& lines)
        : wanted_(wanted), lines_(lines)
    {}

    bool Complete() const { return lines_.size() >= wanted_; }

    void Take(std::string_view block);
    // The last line needs no end. Fewer lines than wanted are PastEnd.
    FileFault EndOfFile();

private:
    std::size_t wanted_;
    std::vector<std::string>& lines_;
    std::string line_;
    bool afterCr_ = false;

    void EndLine();
};

// The first lines of a whole file, and the bytes of such lines.
ReadLines FirstLines(std::string_view content, std::size_t count);
std::string FileContent(const std::vector<std::string>& lines);

// The name under which a file that was not read whole is kept; the player reads it.
std::string KeptName(const std::string& name, int number);

}  // namespace malvone
