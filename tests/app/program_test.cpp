// The real program: started on the offscreen platform with its own database, typed into, ended
// by SIGTERM; brinto-cli then opens the same calculator.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <QImage>

#include "app_fixture.h"

namespace {

using brinto::test::CommandOutput;

// Each signal that asks a program to end (a shutdown, a closed terminal, Ctrl-C, Ctrl-\\) ends it
// normally, with everything typed kept; brinto-cli then goes on from it.
TEST(Program, EndingSignalsKeepWhatWasTypedForBrintoCli) {
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("brinto-app-test-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    const int signals[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT};
    std::vector<pid_t> programs;
    for (const int signal : signals) {
        const std::string db = (dir / (std::to_string(signal) + ".db")).string();
        // brinto-cli makes the first run (RPN chosen), so the program opens without asking.
        CommandOutput(std::string(BRINTO_CLI_PATH) + " --db " + db + " rpn");
        const pid_t pid = fork();
        if (pid == 0) {
            setenv("QT_QPA_PLATFORM", "offscreen", 1);
            setenv("XDG_DATA_HOME", dir.c_str(), 1);
            setenv("XDG_CONFIG_HOME", dir.c_str(), 1);
            execl(BRINTO_APP_PATH, BRINTO_APP_PATH, "--db", db.c_str(), "--keys", "12\n30+7", nullptr);
            _exit(127);
        }
        programs.push_back(pid);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    for (std::size_t i = 0; i < programs.size(); ++i) {
        SCOPED_TRACE(strsignal(signals[i]));
        kill(programs[i], signals[i]);
        int status = 0;
        waitpid(programs[i], &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
        // Y holds the sum, X the 7 that was being typed when the signal came.
        const std::string db = (dir / (std::to_string(signals[i]) + ".db")).string();
        EXPECT_EQ(CommandOutput(std::string(BRINTO_CLI_PATH) + " --db " + db + " + </dev/null"), "49.\n");
    }
    std::filesystem::remove_all(dir);
}

TEST(Program, ScreenshotDrawsEveryWindow) {
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("brinto-shots-" + std::to_string(getpid()));
    // No display and no database: the pictures need neither.
    const std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME=" + dir.string() + "/data " +
                                BRINTO_APP_PATH + " --screenshot " + (dir / "shots").string() + "; echo $?";
    EXPECT_EQ(CommandOutput(command), "0\n");
    EXPECT_FALSE(std::filesystem::exists(dir / "data"));
    // The pictures are those the README and the store listing show from docs/screenshots.
    const auto names = [](const std::filesystem::path& folder) {
        std::set<std::string> found;
        for (const auto& file : std::filesystem::directory_iterator(folder)) found.insert(file.path().filename());
        return found;
    };
    const std::set<std::string> shots = names(dir / "shots");
    EXPECT_EQ(shots, names(std::filesystem::path(__FILE__).parent_path() / "../../docs/screenshots"));
    for (const std::string& name : shots) {
        const QImage image(QString::fromStdString((dir / "shots" / name).string()));
        ASSERT_FALSE(image.isNull()) << name;
        EXPECT_GE(image.width(), 100) << name;
        // Blank means one colour everywhere; a drawn window has text and frames on its background.
        const QImage small = image.convertToFormat(QImage::Format_RGB32);
        const QRgb first = small.pixel(0, 0);
        bool varied = false;
        for (int y = 0; y < small.height() && !varied; ++y) {
            for (int x = 0; x < small.width() && !varied; ++x) varied = small.pixel(x, y) != first;
        }
        EXPECT_TRUE(varied) << name;
    }
    std::filesystem::remove_all(dir);
}

}  // namespace
