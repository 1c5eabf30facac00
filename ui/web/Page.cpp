// Page.cpp: carries calls, events and bytes between the program and page.js.
#include "ui/web/Page.h"

#include <emscripten.h>

#include <cstdlib>
#include <memory>
#include <string_view>

// clang-format off
EM_JS(void, PageTell, (const char* what, const char* a, const char* b), {
    page[UTF8ToString(what)](UTF8ToString(a), UTF8ToString(b));
})
EM_JS(double, PageAsk, (const char* what), { return page[UTF8ToString(what)](); })
EM_ASYNC_JS(char*, PageNextEvent, (bool gameRuns), {
    const text = await page.nextEvent(gameRuns);
    const size = lengthBytesUTF8(text) + 1;
    const memory = _malloc(size);
    stringToUTF8(text, memory, size);
    return memory;
})
EM_JS(int, PageReadEntry, (const char* name, char* bytes), {
    const entry = page.readEntry(UTF8ToString(name));
    if (bytes) HEAPU8.set(Array.from(entry, c => c.charCodeAt(0)), bytes);
    return entry === undefined ? -1 : entry.length;
})
EM_JS(int, PageWriteEntry, (const char* name, const char* bytes, std::size_t size), {
    const content = Array.from(HEAPU8.subarray(bytes, bytes + size), b => String.fromCharCode(b));
    return page.writeEntry(UTF8ToString(name), content.join(""));
})
// clang-format on

namespace malvone::web {

void Tell(const char* what, const std::string& a, const std::string& b)
{
    PageTell(what, a.c_str(), b.c_str());
}

double Ask(const char* what)
{
    return PageAsk(what);
}

// The page writes an event as its fields, one a line; the text comes last.
PageEvent NextEvent(bool gameRuns)
{
    const std::unique_ptr<char, decltype(&std::free)> memory(PageNextEvent(gameRuns), std::free);
    std::string_view rest = memory.get();
    const auto field = [&rest] {
        const std::size_t end = rest.find('\n');
        const std::string text(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        return text;
    };
    PageEvent event{field(), field()};
    for (float& number : event.Numbers) {
        number = std::strtof(field().c_str(), nullptr);
    }
    event.Text = rest;
    return event;
}

std::optional<std::string> ReadEntry(const std::string& name)
{
    const int size = PageReadEntry(name.c_str(), nullptr);
    if (size < 0) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    PageReadEntry(name.c_str(), bytes.data());
    return bytes;
}

FileFault WriteEntry(const std::string& name, const std::string& bytes)
{
    return static_cast<FileFault>(PageWriteEntry(name.c_str(), bytes.data(), bytes.size()));
}

}  // namespace malvone::web
