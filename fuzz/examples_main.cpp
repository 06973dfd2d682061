// Runs the fuzz function on each file of the folders on the command line.
#include <QDirIterator>
#include <QFile>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti);

int main(int argc, char **argv)
{
    int letti = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator file(QString::fromLocal8Bit(argv[i]), QDir::Files);
        while (file.hasNext()) {
            QFile esempio(file.next());
            if (!esempio.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s\n", qPrintable(esempio.errorString()));
                return 1;
            }
            const QByteArray byte = esempio.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(byte.constData()),
                                   static_cast<size_t>(byte.size()));
            ++letti;
        }
    }
    std::printf("%d examples\n", letti);
    return letti > 0 ? 0 : 1;
}
