// The content of a new installation. To set Ravelo up for another business, change the texts in the
// two tables; users fill in the words in square brackets after pasting.

#include "store/Seeds.h"

#include <span>

namespace ravelo {

namespace {

struct Row {
    const char16_t* title;
    const char16_t* icon;
    const char16_t* body;
};

constexpr Row templates[] = {
    {u"First reply to lead", u"bubble.left.and.text.bubble.right",
     u"Hi [Name]! This is Ren from Larkspur Interiors. Thanks for reaching out — happy to help "
     u"with "
     u"your project. To give you an exact quote, could you tell me: 1) the address/location, 2) "
     u"the date you're aiming for, and 3) roughly the size or what you have in mind? 📍"},
    {u"Deposit / Zelle", u"dollarsign.circle",
     u"To lock in your date I take a small deposit and the balance is due on completion. Easiest "
     u"is Zelle to [zelle] — no fees. Once I see it, your date is confirmed and I'll send the "
     u"details. 🙌"},
    {u"Booking confirmed", u"checkmark.seal",
     u"You're all set! ✅ Your booking with Larkspur Interiors is confirmed for [date] at [time], "
     u"[address]. Total: $[amount]. I'll text you the day before. Any questions before then, just "
     u"reply here."},
    {u"Day-before reminder", u"clock",
     u"Hey [Name]! Quick reminder — we're on for tomorrow, [date] at [time] at [address]. I'll "
     u"arrive about 15 min early to set up. See you then! 👋"},
    {u"On my way", u"car", u"On my way to you now, [Name] — see you in about [X] minutes. 🚗"},
    {u"Job done + review", u"star",
     u"All done, [Name]! Thank you for choosing Larkspur Interiors 🙏 If you were happy with "
     u"everything, a quick Google review would mean the world: [review link]"},
    {u"Payment options", u"creditcard",
     u"Payment options: Zelle (no fee), 50/50 split (+5%), or card (+3.5%). Whatever's easiest for "
     u"you!"},
    {u"Signature", u"signature",
     u"Ren · Larkspur Interiors\n📞 [phone] · hello@larkspur.example\n🌐 https://larkspur.example"},
};

constexpr const char16_t* linkIcon = u"link";

constexpr Row links[] = {
    {u"Website", linkIcon, u"https://larkspur.example/"},
    {u"Services", linkIcon, u"https://larkspur.example/services"},
    {u"Portfolio", linkIcon, u"https://larkspur.example/portfolio"},
    {u"Prices", linkIcon, u"https://larkspur.example/prices"},
    {u"Book a visit", linkIcon, u"https://larkspur.example/book"},
    {u"Get a quote", linkIcon, u"https://larkspur.example/quote"},
    {u"Reviews", linkIcon, u"https://larkspur.example/reviews"},
    {u"FAQ", linkIcon, u"https://larkspur.example/faq"},
    {u"About", linkIcon, u"https://larkspur.example/about"},
    {u"Contact", linkIcon, u"https://larkspur.example/contact"},
};

QList<Snippet> snippets(std::span<const Row> rows) {
    QList<Snippet> list;
    for (const Row& row : rows) {
        list.append({QUuid::createUuid(),
                     QString::fromUtf16(row.title),
                     QString::fromUtf16(row.body),
                     QString::fromUtf16(row.icon),
                     {}});
    }
    return list;
}

} // namespace

QList<Snippet> seedSnippets() {
    return snippets(templates);
}

QList<Snippet> linkSnippets() {
    return snippets(links);
}

} // namespace ravelo
