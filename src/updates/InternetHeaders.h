#pragma once

#include <QString>

#include <map>

// The headers of a request or a response: names with their values. A name is known in any case. When a name comes
// again, its last value stands.
class InternetHeaders {
public:
    InternetHeaders() = default;
    // Reads the header block of a response, without the empty line that closes it:
    //     line          what it is
    //     Name: value   a header; blanks around the value do not belong to it
    //     blank, text   more of the value of the line before
    //     no colon      nothing, as the status line in front
    // A line ends in CR LF, LF or CR.
    explicit InternetHeaders(const QString& source);

    // The text that was read, as it came.
    [[nodiscard]] QString Source() const { return source_; }

    // Empty when there is no such header.
    [[nodiscard]] QString Value(const QString& name) const;
    void SetValue(const QString& name, const QString& value);
    void Remove(const QString& name);

    // The headers as a request carries them: "Name: value", with CR LF between two of them and none at the end.
    [[nodiscard]] QString RequestText() const;

private:
    struct IgnoreCase {
        bool operator()(const QString& a, const QString& b) const {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        }
    };

    QString source_;
    std::map<QString, QString, IgnoreCase> values_;
};
