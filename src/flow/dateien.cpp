#include "flow/dateien.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "state/text.h"

bool DATEI_SCHREIBEN(const std::string& pfad, const std::vector<uint8_t>& bytes, bool festschreiben) {
    const int fd = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    size_t geschrieben = 0;
    while (geschrieben < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + geschrieben, bytes.size() - geschrieben);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            ::close(fd);
            return false;
        }
        geschrieben += static_cast<size_t>(n);
    }
    const bool gut = !festschreiben || ::fsync(fd) == 0;
    return ::close(fd) == 0 && gut;
}

namespace {

// The folder's entry of a renamed file reaches the disk only with the folder.
void OrdnerFestschreiben(const std::string& pfad) {
    const std::string ordner = std::filesystem::path(pfad).parent_path().string();
    const int fd = ::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

bool DATEIEN_SICHER_SCHREIBEN(const std::vector<DateiInhalt>& dateien, std::string& fehler) {
    std::vector<std::string> neu;
    auto aufraeumen = [&] {
        for (const auto& t : neu) std::remove(t.c_str());
    };
    for (const auto& d : dateien) {
        neu.push_back(d.pfad + ".neu");
        if (!DATEI_SCHREIBEN(neu.back(), d.bytes, true)) {
            aufraeumen();
            fehler = T("Der Spielstand konnte nicht geschrieben werden (Datenträger voll oder schreibgeschützt?).");
            return false;
        }
    }
    for (size_t i = 0; i < dateien.size(); ++i) {
        if (std::rename(neu[i].c_str(), dateien[i].pfad.c_str()) != 0) {
            aufraeumen();
            fehler = T("Der Spielstand konnte nicht umbenannt werden (Datenträger voll oder schreibgeschützt?).");
            return false;
        }
        neu[i].clear();
    }
    if (!dateien.empty()) OrdnerFestschreiben(dateien.front().pfad);
    return true;
}

bool DATEI_LESEN(const std::string& pfad, std::vector<uint8_t>& bytes) {
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) return false;
    bytes.assign(std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>());
    return !ein.bad();
}
