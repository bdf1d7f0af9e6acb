"""Mails by Python's email package, for comparison.

pythonmail.py make FOLDER COUNT   writes COUNT random mails, N.eml, and what is in each, N.made
pythonmail.py read FOLDER         writes what Python finds in each N.eml to N.read

What is in a mail is a line a value: its name and its bytes in hexadecimal digits.
"""
import email
import email.header
import email.policy
import pathlib
import random
import sys
from email.message import EmailMessage
from email.headerregistry import Address

WORDS = ["plain", "größer", "Ä", "漢字かな", "тест", "😀", "a,b", 'quo"te', "x" * 90, "(c)", "=?no?", "=3D", "é", "co:lon", "<b>"]


def words(rng, count):
    return " ".join(rng.choice(WORDS) for _ in range(rng.randint(1, count)))


def lines(rng):
    text = "\n".join(rng.choice(["", ".", "From here", words(rng, 8), "y" * 2000, "  indented", "end "])
                     for _ in range(rng.randint(1, 12)))
    return text + "\n"


def dump(values):
    return "".join(f"{name} {value.hex()}\n" for name, value in values)


def make(folder, count):
    rng = random.Random(7)
    for i in range(count):
        message = EmailMessage(policy=email.policy.SMTP)
        # Of a name in several words it reads more blanks than there are.
        name, subject = words(rng, 3).replace("x" * 90, "x"), words(rng, 12)
        text = lines(rng)
        message["From"] = Address(name, "ann", "a.test")
        message["To"] = [Address(words(rng, 2).replace("x" * 90, "x"), "bob", "b.test"), Address("", "carl", "c.test")]
        message["Subject"] = subject
        # What Python itself reads again: it loses blanks between some of its words.
        again = email.message_from_bytes(message.as_bytes(), policy=email.policy.default)
        name, subject = again["From"].addresses[0].display_name, str(again["Subject"])
        charset = rng.choice(["utf-8", "utf-8", "iso-2022-jp", "gb18030"])
        if charset == "iso-2022-jp":
            text = "漢字かな plain\n" * 5
        message.set_content(text, charset=charset, cte=None if charset == "utf-8" else "base64")
        values = [("from", name.encode()), ("subject", subject.encode()), ("text", text.encode())]
        if rng.random() < 0.4:
            html = "<p>" + lines(rng)
            message.add_alternative(html, subtype="html")
            values.append(("html", html.encode()))
        for _ in range(rng.randint(0, 3)):
            data = rng.randbytes(rng.choice([0, 1, 2, 56, 57, 58, 3000]))
            file = rng.choice(["a.bin", "grün.txt", "漢" * 30 + ".dat", "with blank.pdf", "semi;colon.x", "l" * 120 + ".y"])
            file = f"{rng.randrange(10**6)} {file}"
            message.add_attachment(data, maintype="application", subtype="x-test", filename=file)
            values += [("name", file.encode()), ("data", data)]
        (folder / f"{i}.eml").write_bytes(message.as_bytes())
        (folder / f"{i}.made").write_text(dump(values))


def read(folder):
    for path in folder.glob("*.eml"):
        message = email.message_from_bytes(path.read_bytes(), policy=email.policy.default)
        assert all(len(line) <= 998 for line in path.read_bytes().split(b"\r\n")), path
        values = [("from", message["From"].addresses[0].display_name.encode()), ("subject", str(message["Subject"] or "").encode())]
        values.append(("message-id", message["Message-ID"].encode()))
        for part in message.walk():
            if part.is_multipart():
                continue
            if part.get_filename() is None:
                kind = "html" if part.get_content_type() == "text/html" else "text"
                values.append((kind, part.get_content().replace("\r", "").encode()))
            else:
                values += [("name", part.get_filename().encode()), ("data", part.get_payload(decode=True))]
        path.with_suffix(".read").write_text(dump(values))


if __name__ == "__main__":
    target = pathlib.Path(sys.argv[2])
    make(target, int(sys.argv[3])) if sys.argv[1] == "make" else read(target)
