#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

// A message box as the user saw it.
struct ShownMessage {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    QMessageBox::StandardButton preferred = QMessageBox::NoButton;
};

// Answers message boxes by pressing their buttons, each from inside the box's own event loop. A box that nobody told
// it of fails the test and is dismissed; so does, at the end of the watcher's life, an expected one that did not come.
class MessageWatcher : public QObject {
public:
    MessageWatcher();
    ~MessageWatcher() override;

    // Expects one more message box and presses this button of it. Boxes are answered in the order of the calls.
    void AnswerNextMessage(QMessageBox::StandardButton button = QMessageBox::Ok);
    // Expects one more message box and does this while it is open; it must end the box.
    void DuringNextMessage(std::function<void(QMessageBox& box)> action);

    // From here on a box that is not expected is no failure: this is done while it is open, and must end it.
    void AnswerOtherMessages(std::function<void(QMessageBox& box)> action) { others_ = std::move(action); }

    // The boxes that were shown so far, expected or not.
    [[nodiscard]] const std::vector<ShownMessage>& ShownMessages() const { return shown_; }
    // The last of them; an empty one when there was none.
    [[nodiscard]] ShownMessage LastMessage() const { return shown_.empty() ? ShownMessage() : shown_.back(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QMessageBox& box);

    std::deque<std::function<void(QMessageBox& box)>> expected_;
    std::function<void(QMessageBox& box)> others_;
    std::vector<ShownMessage> shown_;
};
