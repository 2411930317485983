#pragma once

#include "application/errorhandler.h"

#include <QListWidget>

namespace JOBEDIT
{

/// What went wrong and what was done, the latest at the end; the oldest of more than a thousand go. Can be copied.
class MessageList : public QListWidget
{
    Q_OBJECT

public:
    explicit MessageList(QWidget* parent = nullptr);

    void Add(TKE::Severity severity, const QString& text, const QString& details = {});
    /// Moves all messages of `other` here.
    void TakeFrom(MessageList& other);
    /// The selected messages, or all where none is selected, one a line.
    QString GetText() const;

private:
    void Copy() const;
};

} // namespace JOBEDIT
