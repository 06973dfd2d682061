// The main program of the measurements that Google Benchmark runs.
#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
