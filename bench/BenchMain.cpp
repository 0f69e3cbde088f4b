#include "bench/RatioReporter.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return tessarine::bench::runBenchmarks(argc, argv);
}
