// TextLines.cpp: takes lines apart and puts them together.
#include "platform/TextLines.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace malvone {

void LineCollector::Take(std::string_view block)
{
    for (const char c : block) {
        if (Complete()) {
            return;
        }
        const bool secondOfCrLf = c == '\n' && afterCr_;
        afterCr_ = c == '\r';
        if (c != '\r' && c != '\n') {
            line_ += c;
        } else if (!secondOfCrLf) {
            EndLine();
        }
    }
}

FileFault LineCollector::EndOfFile()
{
    if (!line_.empty() && !Complete()) {
        EndLine();
    }
    return Complete() ? FileFault::None : FileFault::PastEnd;
}

void LineCollector::EndLine()
{
    lines_.push_back(FromWindows1252(line_));
    line_.clear();
}

ReadLines FirstLines(std::string_view content, std::size_t count)
{
    ReadLines result;
    LineCollector collector(count, result.Lines);
    collector.Take(content);
    result.Fault = collector.EndOfFile();
    return result;
}

std::string FileContent(const std::vector<std::string>& lines)
{
    std::string content;
    for (const std::string& line : lines) {
        content += ToWindows1252(line) + "\r\n";
    }
    return content;
}

std::string KeptName(const std::string& name, int number)
{
    const std::size_t end = std::min(name.rfind('.'), name.size());
    return name.substr(0, end) + "-nicht-gelesen-" + std::to_string(number) + name.substr(end);
}

}  // namespace malvone
