// The floor of the end-to-end benchmark: what a run can't do without. It copies the model to
// the result and reads each series record the run reads, by one open, one positioned read of
// its 90 bytes and one close.
//
//   plancher FOLDER     (made by genere_modele; writes FOLDER/plancher.rtf)
//
// Prints the wall and CPU seconds of that work.

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

struct Lecture {
    std::string chemin;
    long enregistrement;
};

double Cpu() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: plancher FOLDER\n");
        return 2;
    }
    const std::string racine = argv[1];
    std::vector<Lecture> lectures;
    {
        std::ifstream liste(racine + "/valeurs.txt");
        std::string fichier;
        long r;
        while (liste >> fichier >> r) lectures.push_back({racine + "/D/" + fichier, r});
    }
    const auto debut = std::chrono::steady_clock::now();
    const double cpu = Cpu();

    std::string modele;
    {
        std::ifstream f(racine + "/modele.vdm", std::ios::binary);
        std::ostringstream o;
        o << f.rdbuf();
        modele = o.str();
    }
    std::ofstream(racine + "/plancher.rtf", std::ios::binary) << modele;
    float somme = 0;
    for (const auto& l : lectures) {
        const int fd = ::open(l.chemin.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0) continue;
        char octets[90];
        if (::pread(fd, octets, sizeof octets, (l.enregistrement - 1) * 90) == 90)
            somme += static_cast<float>(octets[34]);
        ::close(fd);
    }

    const double mur =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
    std::printf("floor: %zu bytes copied, %zu reads: %.3f s wall, %.3f s CPU (%g)\n", modele.size(),
                lectures.size(), mur, Cpu() - cpu, static_cast<double>(somme));
    return 0;
}
