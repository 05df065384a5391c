#pragma once

#include "platform/orologio.h"

#include <filesystem>
#include <string>

namespace lumigrafo {

inline constexpr const char* kFileLogConnessioni = "log_lumigrafoAndroid.txt";
inline constexpr const char* kFileLogVoce = "log.vocal.txt";

/// The three text logs of the program folder, for the people who service an installation. A file is opened,
/// written at its end and closed at each line, so that a crash loses nothing. Lines end as text lines of this
/// system do. A line that can't be written throws Guasto: 76 where the folder is missing, 75 where the file
/// can't be opened, 57 where the device fails.
class RegistroLog {
public:
    /// `cartella`: the program folder. The clock must outlive the object.
    RegistroLog(std::filesystem::path cartella, Orologio& orologio);

    /// A line with the time of day, in the file of the present day and hour. A file that can't be opened at
    /// its end is emptied and written anew, if that is possible.
    void ScriviLog(const std::string& messaggio);
    /// A line of the cash desks' connections, without a time.
    void ScriviLogConnessioni(const std::string& messaggio);
    /// A text that goes to the voice, without a time.
    void ScriviLogVoce(const std::string& testo);

private:
    [[nodiscard]] std::filesystem::path fileDiOra() const;

    std::filesystem::path cartella_;
    Orologio& orologio_;
};

} // namespace lumigrafo
