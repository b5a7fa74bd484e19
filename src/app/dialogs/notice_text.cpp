#include <QRegularExpression>
#include <algorithm>
#include <cstring>
#include <vector>

#include "app/dialogs/ui_text.h"

namespace brinto {

extern const char* const kNoticeSentences[];
extern const int kNoticeSentenceCount;

namespace {

struct Sentence {
    const char* english;
    QRegularExpression pattern;  // the words as they are, each "%n" any text
    std::vector<int> order;      // the number of each "%n" in the order they stand
};

// The most specific sentences first: a notice that fits a sentence with more words of its own is
// that one, not the general "%1; the calculator runs in memory ..." around it.
const std::vector<Sentence>& Sentences() {
    static const std::vector<Sentence> sentences = [] {
        std::vector<Sentence> list;
        for (int i = 0; i < kNoticeSentenceCount; ++i) {
            const QString english = QString::fromUtf8(kNoticeSentences[i]);
            static const QRegularExpression placeholder(QStringLiteral("%([1-9])"));
            QString pattern = QStringLiteral("^");
            std::vector<int> order;
            qsizetype from = 0;
            for (const QRegularExpressionMatch& m : placeholder.globalMatch(english)) {
                pattern += QRegularExpression::escape(english.mid(from, m.capturedStart() - from));
                pattern += QStringLiteral("(.+?)");
                order.push_back(m.captured(1).toInt());
                from = m.capturedEnd();
            }
            pattern += QRegularExpression::escape(english.mid(from)) + QStringLiteral("$");
            list.push_back({kNoticeSentences[i],
                            QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption), order});
        }
        const auto words = [](const Sentence& s) { return std::strlen(s.english) - 2 * s.order.size(); };
        std::stable_sort(list.begin(), list.end(),
                         [&](const Sentence& a, const Sentence& b) { return words(a) > words(b); });
        return list;
    }();
    return sentences;
}

}  // namespace

QString NoticeText(std::string_view english) {
    const QString text = QString::fromUtf8(english.data(), static_cast<qsizetype>(english.size()));
    for (const Sentence& sentence : Sentences()) {
        const QRegularExpressionMatch m = sentence.pattern.match(text);
        if (!m.hasMatch()) continue;
        QString fill[9];
        for (std::size_t i = 0; i < sentence.order.size(); ++i) {
            fill[sentence.order[i] - 1] = NoticeText(m.captured(static_cast<int>(i) + 1).toStdString());
        }
        const QString translated = QCoreApplication::translate("Notice", sentence.english);
        if (sentence.order.empty()) return translated;
        switch (*std::max_element(sentence.order.begin(), sentence.order.end())) {
            case 1: return translated.arg(fill[0]);
            case 2: return translated.arg(fill[0], fill[1]);
            default: return translated.arg(fill[0], fill[1], fill[2]);
        }
    }
    return text;
}

}  // namespace brinto
