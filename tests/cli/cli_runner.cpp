#include "cli_runner.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
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

RunResult RunCli(const std::vector<std::string>& args, const std::string& input,
                 const std::vector<std::string>& environment) {
    int in[2], out[2], err[2];
    if (pipe(in) || pipe(out) || pipe(err)) return {};
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(in[0], 0), dup2(out[1], 1), dup2(err[1], 2);
        for (int fd : {in[0], in[1], out[0], out[1], err[0], err[1]}) close(fd);
        setenv("LC_ALL", "C", 1);  // dates in the transcripts are written the C library's way
        for (const std::string& setting : environment) putenv(const_cast<char*>(setting.c_str()));
        std::vector<char*> argv;
        argv.push_back(const_cast<char*>(BRINTO_CLI_PATH));
        for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        execv(BRINTO_CLI_PATH, argv.data());
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

namespace {

struct Parser {
    const std::string& s;
    std::size_t i = 0;

    void Space() {
        while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i]))) ++i;
    }
    bool Eat(char c) {
        Space();
        if (i < s.size() && s[i] == c) {
            ++i;
            return true;
        }
        return false;
    }
    std::optional<std::string> String() {
        if (!Eat('"')) return std::nullopt;
        std::string out;
        while (i < s.size() && s[i] != '"') {
            if (s[i] == '\\' && i + 1 < s.size()) {
                ++i;
                if (s[i] == 'u' && i + 4 < s.size()) {
                    out += static_cast<char>(std::stoi(s.substr(i + 1, 4), nullptr, 16));
                    i += 4;
                } else {
                    out += s[i] == 'n' ? '\n' : s[i];
                }
            } else {
                out += s[i];
            }
            ++i;
        }
        if (i >= s.size()) return std::nullopt;
        ++i;
        return out;
    }
    std::optional<Json> Value() {
        Space();
        if (i >= s.size()) return std::nullopt;
        Json v;
        if (s[i] == '"') {
            auto text = String();
            if (!text) return std::nullopt;
            v.kind = Json::Kind::String;
            v.text = *text;
        } else if (s[i] == '[') {
            ++i;
            v.kind = Json::Kind::Array;
            if (!Eat(']')) {
                do {
                    auto item = Value();
                    if (!item) return std::nullopt;
                    v.items.push_back(std::move(*item));
                } while (Eat(','));
                if (!Eat(']')) return std::nullopt;
            }
        } else if (s[i] == '{') {
            ++i;
            v.kind = Json::Kind::Object;
            if (!Eat('}')) {
                do {
                    auto key = String();
                    if (!key || !Eat(':')) return std::nullopt;
                    auto item = Value();
                    if (!item) return std::nullopt;
                    v.members.emplace_back(*key, std::move(*item));
                } while (Eat(','));
                if (!Eat('}')) return std::nullopt;
            }
        } else {
            const std::size_t start = i;
            while (i < s.size() && (std::isalnum(static_cast<unsigned char>(s[i])) || s[i] == '-' || s[i] == '.' || s[i] == '+')) ++i;
            v.text = s.substr(start, i - start);
            if (v.text.empty()) return std::nullopt;
            v.kind = v.text == "null" ? Json::Kind::Null
                     : (v.text == "true" || v.text == "false") ? Json::Kind::Bool : Json::Kind::Number;
        }
        return v;
    }
};

}  // namespace

std::optional<Json> ParseJson(const std::string& text) {
    Parser p{text};
    auto v = p.Value();
    p.Space();
    if (!v || p.i != text.size()) return std::nullopt;
    return v;
}

const Json* Json::Find(const std::string& path) const {
    const Json* node = this;
    std::size_t start = 0;
    while (start <= path.size() && node) {
        const std::size_t dot = path.find('.', start);
        const std::string part = path.substr(start, dot == std::string::npos ? std::string::npos : dot - start);
        const Json* next = nullptr;
        if (node->kind == Kind::Array && !part.empty() && std::isdigit(static_cast<unsigned char>(part[0]))) {
            const std::size_t index = std::stoul(part);
            if (index < node->items.size()) next = &node->items[index];
        } else if (node->kind == Kind::Object) {
            for (const auto& [key, value] : node->members) {
                if (key == part) next = &value;
            }
        }
        node = next;
        if (dot == std::string::npos) break;
        start = dot + 1;
    }
    return node;
}

std::string Json::Compact(bool top) const {
    switch (kind) {
        case Kind::Null: return "null";
        case Kind::Bool:
        case Kind::Number: return text;
        case Kind::String: return top ? text : "\"" + text + "\"";
        case Kind::Array: {
            std::string out = "[";
            for (std::size_t k = 0; k < items.size(); ++k) out += (k ? "," : "") + items[k].Compact(false);
            return out + "]";
        }
        case Kind::Object: {
            std::string out = "{";
            for (std::size_t k = 0; k < members.size(); ++k) {
                out += (k ? ",\"" : "\"") + members[k].first + "\":" + members[k].second.Compact(false);
            }
            return out + "}";
        }
    }
    return {};
}

}  // namespace brinto::test
