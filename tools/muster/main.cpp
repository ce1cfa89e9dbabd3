#include "archive/logic/Ziehungskalender.h"
#include "tools/muster/Aufruf.h"
#include "tools/muster/MusterDateien.h"

#include <ctime>
#include <iostream>

namespace {

std::chrono::sys_days heute()
{
    const std::time_t jetzt = std::time(nullptr);
    const std::tm* ortszeit = std::localtime(&jetzt);
    return std::chrono::year{ortszeit->tm_year + 1900} / (ortszeit->tm_mon + 1) / ortszeit->tm_mday;
}

} // namespace

int main(int argc, char* argv[])
{
    const std::optional<Aufruf> aufruf = liesAufruf({argv + 1, argv + argc});
    if (!aufruf) {
        std::cerr << "Aufruf: tombrix-muster [--stand JJJJ-MM-TT] ZIELORDNER\n";
        return 2;
    }
    const std::chrono::sys_days stand = aufruf->stand.value_or(heute());
    if (const std::optional<std::string> fehler = schreibeMusterDateien(aufruf->ordner, stand)) {
        std::cerr << *fehler << '\n';
        return 1;
    }
    std::cout << "Musterdateien mit Stand " << datumText(stand) << " geschrieben.\n";
    return 0;
}
