// The real program: started on the offscreen platform with its own database, typed into, ended
// by SIGTERM; brinto-cli then opens the same calculator.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

namespace {

std::string Output(const std::string& command) {
    std::string out;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char buffer[4096];
        while (size_t n = fread(buffer, 1, sizeof buffer, pipe)) out.append(buffer, n);
        pclose(pipe);
    }
    return out;
}

TEST(Program, SigtermKeepsWhatWasTypedForBrintoCli) {
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("brinto-app-test-" + std::to_string(getpid()));
    std::filesystem::create_directories(dir);
    const std::string db = (dir / "brinto.db").string();
    // brinto-cli makes the first run (RPN chosen), so the program opens without asking.
    Output(std::string(BRINTO_CLI_PATH) + " --db " + db + " rpn");

    const pid_t pid = fork();
    if (pid == 0) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("XDG_DATA_HOME", dir.c_str(), 1);
        setenv("XDG_CONFIG_HOME", dir.c_str(), 1);
        execl(BRINTO_APP_PATH, BRINTO_APP_PATH, "--db", db.c_str(), "--keys", "12\n30+7", nullptr);
        _exit(127);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    kill(pid, SIGTERM);
    int status = 0;
    waitpid(pid, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;

    // Y holds the sum, X the 7 that was being typed when the signal came.
    EXPECT_EQ(Output(std::string(BRINTO_CLI_PATH) + " --db " + db + " + </dev/null"), "49.\n");
    std::filesystem::remove_all(dir);
}

}  // namespace
