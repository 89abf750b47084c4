#include "GoldenFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <vector>

namespace qor::test {

namespace {

struct Edit {
    char op;  // ' ', '-', '+'
    QString line;
};

// Longest common subsequence over the lines between the common head and
// tail; a very long changed middle is shown as removed then added.
std::vector<Edit> lineEdits(const QStringList& a, const QStringList& b)
{
    qsizetype head = 0;
    while (head < a.size() && head < b.size() && a.at(head) == b.at(head))
        ++head;
    qsizetype tail = 0;
    while (tail < a.size() - head && tail < b.size() - head && a.at(a.size() - 1 - tail) == b.at(b.size() - 1 - tail))
        ++tail;
    std::vector<Edit> edits;
    for (qsizetype i = 0; i < head; ++i)
        edits.push_back({ ' ', a.at(i) });
    const qsizetype n = a.size() - head - tail, m = b.size() - head - tail;
    if (n * m <= 4'000'000) {
        std::vector<std::vector<int>> lcs(n + 1, std::vector<int>(m + 1, 0));
        for (qsizetype i = n - 1; i >= 0; --i)
            for (qsizetype j = m - 1; j >= 0; --j)
                lcs[i][j] = a.at(head + i) == b.at(head + j) ? lcs[i + 1][j + 1] + 1 : std::max(lcs[i + 1][j], lcs[i][j + 1]);
        qsizetype i = 0, j = 0;
        while (i < n || j < m) {
            if (i < n && j < m && a.at(head + i) == b.at(head + j)) {
                edits.push_back({ ' ', a.at(head + i) });
                ++i, ++j;
            } else if (i < n && (j == m || lcs[i + 1][j] >= lcs[i][j + 1])) {
                edits.push_back({ '-', a.at(head + i++) });
            } else {
                edits.push_back({ '+', b.at(head + j++) });
            }
        }
    } else {
        for (qsizetype i = 0; i < n; ++i)
            edits.push_back({ '-', a.at(head + i) });
        for (qsizetype j = 0; j < m; ++j)
            edits.push_back({ '+', b.at(head + j) });
    }
    for (qsizetype i = a.size() - tail; i < a.size(); ++i)
        edits.push_back({ ' ', a.at(i) });
    return edits;
}

} // namespace

QString unifiedDiff(const QString& expected, const QString& actual, const QString& name, int context, int maxLines)
{
    const std::vector<Edit> edits = lineEdits(expected.split(QLatin1Char('\n')), actual.split(QLatin1Char('\n')));
    QStringList out = { QStringLiteral("--- %1 (golden)").arg(name), QStringLiteral("+++ %1 (now)").arg(name) };
    const qsizetype count = qsizetype(edits.size());
    qsizetype i = 0;
    int oldLine = 1, newLine = 1;
    while (i < count) {
        if (edits[i].op == ' ') {
            ++i, ++oldLine, ++newLine;
            continue;
        }
        // A hunk: from `context` lines before this change to `context` lines
        // after the last change that is no more than 2*context lines away.
        qsizetype start = std::max<qsizetype>(0, i - context);
        int oldStart = oldLine - int(i - start), newStart = newLine - int(i - start);
        qsizetype end = i;
        for (qsizetype k = i; k < count && k <= end + 2 * context; ++k)
            if (edits[k].op != ' ')
                end = k;
        end = std::min(count - 1, end + context);
        int oldCount = 0, newCount = 0;
        QStringList body;
        for (qsizetype k = start; k <= end; ++k) {
            body << QLatin1Char(edits[k].op) + edits[k].line;
            oldCount += edits[k].op != '+';
            newCount += edits[k].op != '-';
        }
        out << QStringLiteral("@@ -%1,%2 +%3,%4 @@").arg(oldStart).arg(oldCount).arg(newStart).arg(newCount);
        out << body;
        for (qsizetype k = i; k <= end; ++k) {
            oldLine += edits[k].op != '+';
            newLine += edits[k].op != '-';
        }
        i = end + 1;
        if (out.size() > maxLines) {
            out = out.mid(0, maxLines);
            out << QStringLiteral("... (more differences)");
            break;
        }
    }
    return out.join(QLatin1Char('\n'));
}

::testing::AssertionResult matchesGolden(const QString& path, const QString& text, const char* updateTarget)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (qEnvironmentVariableIntValue("QOR_UPDATE_GOLDEN") == 1) {
        QDir().mkpath(QFileInfo(path).path());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text.toUtf8()) < 0)
            return ::testing::AssertionFailure() << "cannot write " << path.toStdString();
        return ::testing::AssertionSuccess();
    }
    if (!file.open(QIODevice::ReadOnly))
        return ::testing::AssertionFailure() << path.toStdString() << " is missing: build the " << updateTarget << " target";
    const QString golden = QString::fromUtf8(file.readAll());
    if (golden == text)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << name.toStdString() << " differs (build the " << updateTarget
                                         << " target if the change is intended):\n"
                                         << unifiedDiff(golden, text, name).toStdString();
}

} // namespace qor::test
