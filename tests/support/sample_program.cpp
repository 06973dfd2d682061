// A program that a list starts: waits as long as there is a file "attendi" in the current folder,
// and then writes its arguments, one a line, into "esito.txt".
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

// On Windows the arguments would be matched against file names before the program sees them.
extern "C" {
extern int _CRT_glob;
int _CRT_glob = 0;
}

int main(int quanti, char **argomenti)
{
    using namespace std::chrono_literals;
    while (std::filesystem::exists("attendi"))
        std::this_thread::sleep_for(10ms);
    // Whole or not there at all.
    {
        std::ofstream esito("esito.parte", std::ios::binary);
        for (int i = 1; i < quanti; ++i)
            esito << argomenti[i] << '\n';
    }
    return std::rename("esito.parte", "esito.txt");
}
