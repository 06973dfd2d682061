// A program that a move list starts. It waits while there is a file "attendi" in the current
// folder, then writes its arguments, one a line, into "esito.txt".
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

// Otherwise Windows would expand wildcards in the arguments to file names.
extern "C" {
extern int _CRT_glob;
int _CRT_glob = 0;
}

int main(int quanti, char **argomenti)
{
    using namespace std::chrono_literals;
    while (std::filesystem::exists("attendi"))
        std::this_thread::sleep_for(10ms);
    // Renamed at the end, so that a test never sees half of the file.
    {
        std::ofstream esito("esito.parte", std::ios::binary);
        for (int i = 1; i < quanti; ++i)
            esito << argomenti[i] << '\n';
    }
    return std::rename("esito.parte", "esito.txt");
}
