#include "strumenti/archivio/programma.h"

#include <ctime>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

class OrologioLocale : public lumigrafo::Orologio {
public:
    [[nodiscard]] lumigrafo::DataOra adesso() const override {
        const std::time_t t = std::time(nullptr);
        const std::tm l = *std::localtime(&t);
        return {{l.tm_year + 1900, l.tm_mon + 1, l.tm_mday}, l.tm_hour, l.tm_min, l.tm_sec};
    }
    void attendi(std::chrono::milliseconds durata) override { std::this_thread::sleep_for(durata); }
};

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> argomenti(argv + (argc > 0 ? 1 : 0), argv + argc);
    return lumigrafo::archivio::esegui(argomenti, OrologioLocale(), std::cout, std::cerr);
}
