#include "cli_runner.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace brinto::test {

namespace {

std::string ReadAll(int fd) {
    std::string text;
    char buffer[65536];
    ssize_t n;
    while ((n = read(fd, buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<std::size_t>(n));
    return text;
}

}  // namespace

RunResult RunProgram(const std::vector<std::string>& argv, const std::string& input,
              const std::vector<std::string>& environment, const std::string& outputFile) {
    int in[2], out[2], err[2];
    if (pipe(in) || pipe(out) || pipe(err)) return {};
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(in[0], 0), dup2(out[1], 1), dup2(err[1], 2);
        for (int fd : {in[0], in[1], out[0], out[1], err[0], err[1]}) close(fd);
        if (!outputFile.empty()) {
            const int file = open(outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
            if (file < 0 || dup2(file, 1) < 0) _exit(126);
            close(file);
        }
        setenv("LC_ALL", "C", 1);  // dates in the transcripts are written the C library's way
        for (const std::string& setting : environment) putenv(const_cast<char*>(setting.c_str()));
        std::vector<char*> args;
        for (const std::string& a : argv) args.push_back(const_cast<char*>(a.c_str()));
        args.push_back(nullptr);
        execv(args[0], args.data());
        _exit(127);
    }
    close(in[0]), close(out[1]), close(err[1]);
    // The inputs used here are small enough for the pipe buffer.
    if (!input.empty() && write(in[1], input.data(), input.size()) < 0) input.size();
    close(in[1]);
    RunResult result;
    result.out = ReadAll(out[0]);
    result.err = ReadAll(err[0]);
    close(out[0]), close(err[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

RunResult RunCli(const std::vector<std::string>& args, const std::string& input,
                 const std::vector<std::string>& environment, const std::string& outputFile) {
    std::vector<std::string> argv = {BRINTO_CLI_PATH};
    argv.insert(argv.end(), args.begin(), args.end());
    return RunProgram(argv, input, environment, outputFile);
}

std::optional<Json> ParseJson(const std::string& text) {
    Json json = Json::parse(text, nullptr, false);
    if (json.is_discarded()) return std::nullopt;
    return json;
}

const Json* Find(const Json& json, const std::string& path) {
    std::string pointer = "/" + path;
    std::replace(pointer.begin(), pointer.end(), '.', '/');
    const Json::json_pointer at(pointer);
    return json.contains(at) ? &json.at(at) : nullptr;
}

std::string Compact(const Json& value) { return value.is_string() ? value.get<std::string>() : value.dump(); }

}  // namespace brinto::test
