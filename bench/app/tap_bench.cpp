// A tap on a drawn key to the repainted display and keys, on Qt's offscreen platform.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <QApplication>
#include <QTest>
#include <filesystem>
#include <string>

#include "app/calculator.h"
#include "app/main_window.h"
#include "app/window_host.h"

namespace brinto {
namespace {

class QuietHost : public WindowHost {
public:
    QuietHost() { askInputMethod = false; }
    void ShowMessage(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
};

// Argument 1: the calculator is kept in a database file, every tap saved as it is made (the
// program's own way); 0: in memory, the drawing alone.
void TapToRepaint(benchmark::State& state) {
    QuietHost host;
    Calculator calculator(host);
    const std::string folder = "/tmp/brinto-tap-bench-" + std::to_string(getpid());
    std::filesystem::create_directories(folder);
    AppOptions options = AppOptions::InMemory();
    if (state.range(0) == 1) {
        options.memory = false;
        options.db = folder + "/brinto.db";
    }
    calculator.Start(options);
    calculator.store.KeepEachCommand();
    MainWindow window(calculator.session);
    host.window = &window;
    window.resize(360, 480);
    window.show();
    KeyView* keys = window.keyboardView();
    int seven = 0;
    while (keys->ActiveId(seven) != fid::Digit7) ++seven;
    const QPoint at = keys->CellRect(seven).center();
    // Both views are painted into images of their size, as a repaint paints the backing store.
    QImage displayImage(window.display()->size(), QImage::Format_ARGB32_Premultiplied);
    QImage keysImage(keys->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QTest::mouseClick(keys, Qt::LeftButton, {}, at);
        window.display()->render(&displayImage);
        keys->render(&keysImage);
        // Keep the number short so every tap does the same work.
        if (calculator.engine.state.entryDigits > 8) calculator.session.Tap(fid::ClearX);
    }
    calculator.store.Finish();
    std::filesystem::remove_all(folder);
}
BENCHMARK(TapToRepaint)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace brinto

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
