#include "value/tree.h"
#include "value/valueobservingptr.h"

#include <QtTest>
#include <functional>
#include <limits>

using namespace TKE;

namespace
{

struct Hearer final : IObserver
{
    void Update(Observable*, TChangeCode code) override
    {
        codes.push_back(code);
        if (onUpdate)
            onUpdate();
    }
    std::vector<int> codes;
    std::function<void()> onUpdate;
};

ValueDescriptor Ranged(ValueKind kind, double minimum, double maximum)
{
    ValueDescriptor descriptor;
    descriptor.kind = kind;
    descriptor.minimum = minimum;
    descriptor.maximum = maximum;
    descriptor.defaultText = QStringLiteral("0");
    return descriptor;
}

ValueDescriptor Modes(bool multiple)
{
    ValueDescriptor descriptor;
    descriptor.kind = ValueKind::Selection;
    descriptor.multiple = multiple;
    descriptor.items = {{3, QStringLiteral("AM")}, {1, QStringLiteral("FM")}, {7, QStringLiteral("Morse")}};
    descriptor.defaultText = QStringLiteral("1");
    return descriptor;
}

const ValueDescriptor level = Ranged(ValueKind::Int, -10, 20);
const ValueDescriptor ratio = Ranged(ValueKind::Double, -1.5, 1.5);
const ValueDescriptor band = Ranged(ValueKind::Frequency, 10'000, 3'000'000'000.0);
const ValueDescriptor levels = Ranged(ValueKind::DoubleList, 0, 10);
const ValueDescriptor mode = Modes(false);
const ValueDescriptor modes = Modes(true);

} // namespace

class test_value : public QObject
{
    Q_OBJECT

    Tree m_tree;
    ValueBase* Make(const ValueDescriptor& descriptor) { return m_tree.CreateValue(u"/Node/VALUE", descriptor); }

private slots:
    void cleanup()
    {
        m_tree.SetJournal({});
        m_tree.Clear();
        QLocale::setDefault(QLocale::c());
    }

    void TextIsTakenExactlyOrRefused_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("taken");
        const auto row = [](ValueKind kind, const char* text, bool taken)
        {
            const QString wanted = QString::fromUtf8(text);
            QTest::addRow("%d: %s", int(kind), qPrintable(wanted.simplified())) << int(kind) << wanted << taken;
        };
        for (const char* text : {"true", "false"})
            row(ValueKind::Bool, text, true);
        for (const char* text : {"", "True", "1", "yes", "true "})
            row(ValueKind::Bool, text, false);
        for (const char* text : {"0", "-7", "2147483647", "-2147483648"})
            row(ValueKind::Int, text, true);
        for (const char* text : {"", " 7", "7 ", "+7", "7.0", "1,000", "2147483648", "0x10", "1e3", "٧"})
            row(ValueKind::Int, text, false);
        for (const char* text : {"0", "-0.5", "0.1", "1e+300", "5e-324", "123456.789"})
            row(ValueKind::Double, text, true);
        for (const char* text : {"", "0,5", "1e400", "inf", "nan", "1.2.3", "1.5x"})
            row(ValueKind::Double, text, false);
        for (const char* text : {"9007199254740993", "9223372036854775807", "433920000"})
            row(ValueKind::Frequency, text, true);
        for (const char* text : {"433.92", "433920000 Hz", "9223372036854775808"})
            row(ValueKind::Frequency, text, false);
        for (const char* text : {"", " blanks stay ", "µV Ω 日本 😀", "a\nb", "<&>\""})
            row(ValueKind::Text, text, true);
        // The hour that summer time skips in Europe and the day that Berlin's clocks were set are moments like any
        // other.
        for (const char* text : {"", "2024-02-29T23:59:59", "2024-03-31T02:30:00", "1893-04-01T00:00:00"})
            row(ValueKind::DateTime, text, true);
        for (const char* text :
             {"2023-02-29T00:00:00", "2024-02-29 23:59:59", "2024-02-29T24:00:00", "2024-02-29", "x"})
            row(ValueKind::DateTime, text, false);
        for (const char* text : {"", "1", "1.5;-2;3"})
            row(ValueKind::DoubleList, text, true);
        for (const char* text : {";", "1;", ";1", "1;;2", "1,2", "1; 2", "1;nan"})
            row(ValueKind::DoubleList, text, false);
    }
    void TextIsTakenExactlyOrRefused()
    {
        QFETCH(int, kind);
        QFETCH(QString, text);
        QFETCH(bool, taken);
        qputenv("TZ", "Europe/Berlin");
        QLocale::setDefault(QLocale(QLocale::German));
        for (const bool stored : {false, true})
        {
            ValueBase* value = Make(ValueDescriptor::Plain(ValueKind(kind)));
            const QString before = value->GetText();
            QString reason;
            QCOMPARE(stored ? value->SetStoredText(text, nullptr, &reason) : value->SetFromText(text, nullptr, &reason),
                     taken);
            QCOMPARE(reason.isEmpty(), taken);
            QCOMPARE(value->GetText(), taken ? text : before);
            QCOMPARE(value->GetStoredText(), taken ? text : before);
            m_tree.Clear();
        }
        qunsetenv("TZ");
    }

    void NumbersOutsideTheRangeAreRefusedWithTheLimit_data()
    {
        QTest::addColumn<const ValueDescriptor*>("descriptor");
        QTest::addColumn<QString>("inside");
        QTest::addColumn<QString>("outside");
        QTest::addColumn<QString>("limit");
        QTest::newRow("int below") << &level << "-10"
                                   << "-11"
                                   << "-10";
        QTest::newRow("int above") << &level << "20"
                                   << "21"
                                   << "20";
        QTest::newRow("double below") << &ratio << "-1.5"
                                      << "-1.5000000000000002"
                                      << "-1.5";
        QTest::newRow("double above") << &ratio << "1.5"
                                      << "1e9"
                                      << "1.5";
        QTest::newRow("frequency above") << &band << "3000000000"
                                         << "3000000001"
                                         << "3000000000";
        QTest::newRow("one of a list") << &levels << "0;10;5"
                                       << "5;10.5;5"
                                       << "10";
    }
    void NumbersOutsideTheRangeAreRefusedWithTheLimit()
    {
        QFETCH(const ValueDescriptor*, descriptor);
        QFETCH(QString, inside);
        QFETCH(QString, outside);
        QFETCH(QString, limit);
        ValueBase* value = Make(*descriptor);
        Hearer hearer;
        value->Attach(&hearer);
        QVERIFY(value->SetFromText(inside));
        QCOMPARE(int(hearer.codes.size()), 1);
        QString reason;
        QVERIFY(!value->SetFromText(outside, nullptr, &reason));
        QVERIFY2(reason.endsWith(limit), qPrintable(reason));
        QVERIFY(!value->SetStoredText(outside));
        QCOMPARE(value->GetText(), inside);
        QCOMPARE(int(hearer.codes.size()), 1);
    }

    void NoContentIsNotANumber()
    {
        auto* value = m_tree.CreateValue<DoubleValue>(u"/K");
        for (const double number :
             {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()})
            QVERIFY(!value->SetValue(number));
        QCOMPARE(value->GetValue(), 0.0);
    }

    void AWriteThatChangesNothingNotifiesNobody_data()
    {
        QTest::addColumn<const ValueDescriptor*>("descriptor");
        QTest::addColumn<QString>("text");
        for (int kind = 1; kind <= 7; ++kind)
        {
            static const std::array<const char*, 8> texts{"",   "true", "5", "0.25", "1000", "a", "2024-05-01T12:00:00",
                                                          "1;2"};
            QTest::addRow("kind %d", kind)
                << &ValueDescriptor::Plain(ValueKind(kind)) << QString::fromUtf8(texts[size_t(kind)]);
        }
        QTest::newRow("selection") << &mode << "3";
        QTest::newRow("multiple selection") << &modes << "3;7";
    }
    void AWriteThatChangesNothingNotifiesNobody()
    {
        QFETCH(const ValueDescriptor*, descriptor);
        QFETCH(QString, text);
        ValueBase* value = Make(*descriptor);
        int journalled = 0;
        m_tree.SetJournal([&](const JournalEntry&) { ++journalled; });
        Hearer hearer;
        value->Attach(&hearer);
        QVERIFY(value->SetStoredText(text));
        QVERIFY(hearer.codes == std::vector<int>{ccContent});
        QVERIFY(value->SetStoredText(text));
        QVERIFY(value->SetFromText(value->GetText()));
        QVERIFY(hearer.codes == std::vector<int>{ccContent});
        QCOMPARE(journalled, 1);
        QCOMPARE(value->GetStoredText(), text);
    }

    void AMomentIsWhatTheClockShowsWhateverItsTimeZone()
    {
        auto* value = m_tree.CreateValue<DateTimeValue>(u"/K");
        Hearer hearer;
        value->Attach(&hearer);
        QVERIFY(value->SetValue(QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::OffsetFromUTC, 7200)));
        QVERIFY(value->SetValue(QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC)));
        QCOMPARE(value->GetText(), QStringLiteral("2024-05-01T12:00:00"));
        QCOMPARE(int(hearer.codes.size()), 1);
    }

    void TheWriterDoesNotHearItself_data()
    {
        QTest::addColumn<const ValueDescriptor*>("descriptor");
        QTest::addColumn<QString>("text");
        QTest::newRow("number") << &level << "5";
        QTest::newRow("selection") << &mode << "Morse";
        QTest::newRow("multiple selection") << &modes << "3;7";
    }
    void TheWriterDoesNotHearItself()
    {
        QFETCH(const ValueDescriptor*, descriptor);
        QFETCH(QString, text);
        ValueBase* value = Make(*descriptor);
        Hearer writer, other;
        value->Attach(&writer);
        value->Attach(&other);
        QVERIFY(value->SetFromText(text, &writer));
        QVERIFY(value->SetToDefault(&writer));
        value->SetState(stDisabled, &writer);
        QVERIFY(writer.codes.empty());
        QVERIFY(other.codes.back() == ccState);
        QVERIFY(value->SetFromText(text));
        QVERIFY(writer.codes == std::vector<int>{ccContent});
    }

    void OnlyBooleansTakeBooleans()
    {
        ValueBase* flag = m_tree.CreateValue(u"/FLAG", ValueDescriptor::Plain(ValueKind::Bool));
        ValueBase* text = m_tree.CreateValue(u"/TEXT", ValueDescriptor::Plain(ValueKind::Text));
        QCOMPARE(flag->GetTypeCode(), 1);
        QVERIFY(flag->SetBool(true) && flag->GetBool());
        QVERIFY(text->SetFromText(QStringLiteral("true")));
        QVERIFY(!text->SetBool(false) && !text->GetBool());
        QCOMPARE(text->GetText(), QStringLiteral("true"));
    }

    void AChangeOfStateIsToldOnce()
    {
        ValueBase* value = Make(level);
        Hearer hearer;
        value->Attach(&hearer);
        value->SetState(stEnabled);
        value->SetState(stDisabled);
        value->SetState(stDisabled);
        QVERIFY(hearer.codes == std::vector<int>{ccState});
        // State is a matter of display: content is written as ever.
        QVERIFY(value->SetFromText(QStringLiteral("3")));
    }

    void AValueThatDiesReportsItsEndWhileItIsWhole()
    {
        static const QString name = QStringLiteral("LOOSE");
        Hearer hearer;
        QString last;
        const auto watch = [&](ValueBase* value)
        {
            hearer.onUpdate = [&last, value]
            { last = value->GetPathName() + value->GetText() + QString::number(value->GetState()); };
            value->Attach(&hearer);
        };
        auto number = std::make_unique<IntValue>(name, level);
        number->SetValue(4);
        watch(number.get());
        number.reset();
        QCOMPARE(last, QStringLiteral("LOOSE41"));
        auto selection = std::make_unique<ValueSelection>(name, mode);
        selection->SelectKey(7);
        watch(selection.get());
        selection.reset();
        QCOMPARE(last, QStringLiteral("LOOSEMorse1"));
    }

    void SelectionsGoByNameForPeopleAndByKeyForFiles()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/MODE", mode);
        QCOMPARE(value->GetText(), QStringLiteral("FM"));
        QVERIFY(value->SetFromText(QStringLiteral("Morse")));
        QCOMPARE(value->GetCurrentKey(), 7);
        QCOMPARE(value->GetStoredText(), QStringLiteral("7"));
        QCOMPARE(value->GetSelectedItem()->GetName(), QStringLiteral("Morse"));
        QString reason;
        for (const char* name : {"morse", "7", "", "USB"})
            QVERIFY(!value->SetFromText(QString::fromUtf8(name), nullptr, &reason));
        QVERIFY(reason.contains(QStringLiteral("USB")));
        QVERIFY(!value->SelectKey(2, nullptr, &reason));
        QVERIFY(!value->SetStoredText(QStringLiteral("Morse"), nullptr, &reason));
        QCOMPARE(value->GetCurrentKey(), 7);
    }

    void AnUnknownKeyOfAFileIsKept()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/MODE", mode);
        QVERIFY(value->SetStoredText(QStringLiteral("42")));
        QCOMPARE(value->GetCurrentKey(), 42);
        QVERIFY(!value->GetSelectedItem());
        QCOMPARE(value->GetText(), QStringLiteral("42"));
        QCOMPARE(value->GetStoredText(), QStringLiteral("42"));

        auto* several = m_tree.CreateValue<ValueSelection>(u"/MODES", modes);
        QVERIFY(several->SetStoredText(QStringLiteral("42;3")));
        QVERIFY(several->SetKeys({42, 1}));
        QVERIFY(!several->SetKeys({43}));
        QCOMPARE(several->GetStoredText(), QStringLiteral("1;42"));
    }

    void MultipleSelectionsAreSets()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/MODES", modes);
        QVERIFY(value->GetKeys() == std::vector<int>{1});
        QVERIFY(value->SetFromText(QStringLiteral("7;3;7")));
        QVERIFY(value->GetKeys() == (std::vector<int>{3, 7}));
        QVERIFY(value->SetKeys({}));
        QCOMPARE(value->GetText(), QString());
        for (const char* text : {"3;x", ";", "3;;7", "AM", "3;9"})
            QVERIFY2(!value->SetFromText(QString::fromUtf8(text)), text);
        QVERIFY(value->GetKeys().empty());
    }

    void OwnItemsReplaceThoseOfTheDescriptorForThisValueOnly()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/A", mode);
        auto* other = m_tree.CreateValue<ValueSelection>(u"/B", mode);
        Hearer hearer;
        value->Attach(&hearer);
        value->SetItems(mode.items);
        QVERIFY(hearer.codes.empty());
        value->SetItems({{9, QStringLiteral("PSK")}});
        QVERIFY(hearer.codes == std::vector<int>{ccItems});
        QCOMPARE(value->GetCurrentKey(), 1);
        QVERIFY(!value->GetSelectedItem() && !value->SelectKey(3));
        QVERIFY(value->SelectKey(9) && other->SelectKey(3));
    }

    void TheJournalSeesEveryChangeWithItsDepth()
    {
        auto* mainValue = m_tree.CreateValue<IntValue>(u"/N/MAIN", level);
        auto* follower = m_tree.CreateValue<ValueSelection>(u"/N/FOLLOWER", mode);
        Hearer hearer;
        hearer.onUpdate = [&] { follower->SelectKey(7); };
        mainValue->Attach(&hearer);
        QStringList seen;
        m_tree.SetJournal(
            [&](const JournalEntry& entry)
            {
                // It comes after the change and before anybody hears of it.
                if (&entry.value == mainValue)
                    QVERIFY(mainValue->GetStoredText() == entry.after && follower->GetCurrentKey() == 1);
                seen += QStringLiteral("%1 %2>%3 %4")
                            .arg(entry.value.GetPathName(), entry.before, entry.after)
                            .arg(entry.depth);
            });
        QVERIFY(mainValue->SetValue(5));
        QVERIFY(!mainValue->SetValue(500));
        follower->SetState(stDisabled);
        QVERIFY(follower->SelectKey(3));
        const QStringList expected{QStringLiteral("/N/MAIN 0>5 0"), QStringLiteral("/N/FOLLOWER 1>7 1"),
                                   QStringLiteral("/N/FOLLOWER 7>3 0")};
        QCOMPARE(seen, expected);

        const JournalHook hook = m_tree.SetJournal({});
        QVERIFY(hook);
        QVERIFY(mainValue->SetValue(6));
        QCOMPARE(seen, expected);
    }

    void APointerPassesChangesOnAndEmptiesItselfBeforeItTellsTheEnd()
    {
        struct Holder final : IObserver
        {
            void Update(Observable* source, TChangeCode code) override
            {
                ++heard;
                last = {source, code};
                heldThen = bool(pointer);
            }
            ValueObservingPtr<ValueBase> pointer{this};
            int heard = 0;
            std::pair<Observable*, TChangeCode> last;
            bool heldThen = false;
        } holder;
        ValueBase* first = m_tree.CreateValue(u"/FIRST", level);
        ValueBase* second = m_tree.CreateValue(u"/SECOND", level);
        holder.pointer = first;
        QVERIFY(holder.pointer.Get() == first);
        holder.pointer->SetFromText(QStringLiteral("1"));
        QVERIFY(holder.last == std::pair(static_cast<Observable*>(first), ccContent));
        first->SetState(stDisabled);
        QVERIFY(holder.heard == 2 && holder.heldThen);

        holder.pointer = second;
        QVERIFY(!first->IsObserved());
        holder.pointer = second;
        second->SetFromText(QStringLiteral("1"));
        QCOMPARE(holder.heard, 3);

        m_tree.RemoveValue(u"/SECOND");
        QVERIFY(holder.heard == 4 && holder.last.second == ccState && !holder.heldThen && !holder.pointer);

        // Withdrawn, not deleted: the same.
        holder.pointer = first;
        first->SetState(stReleased);
        QVERIFY(!holder.pointer && !first->IsObserved());

        holder.pointer = first;
        holder.pointer.Reset();
        QVERIFY(!holder.pointer && !first->IsObserved());
    }

    void APointerMayDieWithItsHolderInTheHoldersUpdate_data()
    {
        QTest::addColumn<bool>("valueDies");
        QTest::newRow("of a change") << false;
        QTest::newRow("of the end of the value") << true;
    }
    void APointerMayDieWithItsHolderInTheHoldersUpdate()
    {
        QFETCH(bool, valueDies);
        struct Holder final : IObserver
        {
            void Update(Observable*, TChangeCode) override { self.reset(); }
            std::unique_ptr<Holder>& self;
            ValueObservingPtr<ValueBase> pointer{this};
            explicit Holder(std::unique_ptr<Holder>& owner) : self(owner) {}
        };
        ValueBase* value = Make(level);
        std::unique_ptr<Holder> holder;
        holder = std::make_unique<Holder>(holder);
        holder->pointer = value;
        Hearer next;
        value->Attach(&next);
        if (valueDies)
            m_tree.Clear();
        else
            QVERIFY(value->SetFromText(QStringLiteral("2")) && value->IsObserved());
        QVERIFY(!holder);
        QCOMPARE(int(next.codes.size()), 1);
    }
};

QTEST_GUILESS_MAIN(test_value)
#include "test_value.moc"
