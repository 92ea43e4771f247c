#!/usr/bin/env python3
"""Records Wine's answers to the profile and number requests that the replay
test (tests/platform/wine/WineReplayTest.cpp) checks the program against.

Builds ProfileOracle.exe and NumberOracle.exe with the MinGW cross compiler,
runs them under wine64 in a scratch prefix and writes, under
tests/platform/wine/:
  reads.tsv            file, section, key, Wine's "count value"
  write-cases.tsv      file, bytes before ("%!": no file), section, key, value, Wine's result
  write-files.tsv      file, bytes after the writes
  write-reads.tsv      reads of the files after the writes, as reads.tsv
  number-texts.tsv     text, "double single" under en_US, the same under de_DE
                       (numbers in std::to_chars's shortest form)
  number-to-text.tsv   number, its text under en_US, under de_DE
Fields are escaped as in OracleFields.h. known-differences.tsv is kept by
hand: after a new recording, review `git diff` and that file's Wine column.

Usage: tools/wine-oracle/record.py   (needs wine64 and x86_64-w64-mingw32-g++)
"""
import decimal
import os
import shutil
import struct
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.join(HERE, '..', '..', 'tests', 'platform', 'wine')
WINE = shutil.which('wine64') or '/usr/lib/wine/wine64'
MISSING = '%!'


def enc(b):
    if not b:
        return '%-'
    return ''.join(chr(c) if 0x20 < c < 0x7F and c != 0x25 else '%%%02X' % c for c in b)


def cp1252_text(b):
    # Bytes that Windows-1252 leaves undefined stand for the C1 controls.
    return ''.join(bytes([c]).decode('cp1252', errors='ignore') or chr(c) for c in b)


def cp1252_bytes(s):
    out = bytearray()
    for ch in s:
        try:
            out += ch.encode('cp1252')
        except UnicodeEncodeError:
            out += bytes([ord(ch)]) if 0x80 <= ord(ch) < 0xA0 else b'?'
    return bytes(out)


class Wine:
    def __init__(self, tmp):
        self.tmp = tmp
        self.env = dict(os.environ, WINEPREFIX=os.path.join(tmp, 'prefix'), WINEDEBUG='-all',
                        WINEDLLOVERRIDES='mscoree,mshtml=')
        for name in ('DISPLAY', 'WAYLAND_DISPLAY', 'LC_NUMERIC'):
            self.env.pop(name, None)
        for name, libs in (('ProfileOracle', []), ('NumberOracle', ['-loleaut32'])):
            subprocess.run(['x86_64-w64-mingw32-g++', '-O2', '-static', '-o', os.path.join(tmp, name + '.exe'),
                            os.path.join(HERE, name + '.cpp')] + libs, check=True)

    def run(self, program, lines, locale='en_US.UTF-8'):
        env = dict(self.env, LC_ALL=locale, LANG=locale)
        out = subprocess.run([WINE, os.path.join(self.tmp, program + '.exe')], input='\n'.join(lines) + '\n',
                             capture_output=True, env=env, text=True, check=True).stdout.split('\n')
        out = [line.rstrip('\r') for line in out if line]
        assert len(out) == len(lines), (program, len(out), len(lines))
        return out

    def path(self, native):
        return enc(('Z:' + native.replace('/', '\\')).encode())

    def stop(self):
        subprocess.run([WINE.replace('wine64', 'wineserver'), '-k'], env=self.env, check=False)


BLANKS = b' \t\n\v\f\r\x1a'


def until_nul(b):
    return b.split(b'\0')[0]


BOM_UTF8 = b'\xef\xbb\xbf'


def names_of(data):
    """Section and key names of a file as Wine reads it, in the ANSI code
    page: a file with a UTF-8 byte-order mark is read as UTF-8."""
    if data.startswith(BOM_UTF8):
        data = cp1252_bytes(data[len(BOM_UTF8):].decode('utf-8', errors='replace'))
    sections, keys = set(), set()
    for line in data.replace(b'\r', b'\n').split(b'\n'):
        line = line.strip(BLANKS)
        close = line.rfind(b']')
        if line.startswith(b'[') and close > 0:
            sections.add(until_nul(line[1:close]))
        elif line:
            keys.add(until_nul(line.split(b'=')[0].strip(BLANKS)))
    return sections, keys


def spellings(name):
    """A name in other case and with blanks around it, as a user's file may spell it."""
    out = [name]
    if name.strip(BLANKS) != name:
        out.append(name.strip(BLANKS))
    text = cp1252_text(name)
    for other in (text.upper(), text.lower()):
        b = cp1252_bytes(other)
        if len(other) == len(text) and b.count(b'?') == name.count(b'?') and b not in out:
            out.append(b)
    return out + [b' ' + name + b'\t', b'\xa0' + name]


def reads_of(file, data, sections, keys):
    rows = []
    for section in sorted(s for s in sections if until_nul(s))[:40]:
        for key in sorted(k for k in keys if until_nul(k))[:60]:
            for s in spellings(until_nul(section)):
                rows += [(file, s, k) for k in spellings(until_nul(key))]
    return rows


def record_reads(wine, tmp, rows, folder):
    answers = wine.run('ProfileOracle', ['G %s %s %s' % (wine.path(os.path.join(folder, f)), enc(s), enc(k))
                                         for f, s, k in rows])
    return ['%s\t%s\t%s\t%s' % (f, enc(s), enc(k), a) for (f, s, k), a in zip(rows, answers)]


def profile_reads(wine, tmp):
    folder = os.path.join(DATA, 'profiles')
    rows = reads_of('missing.ini', b'', {b'S', b'Nope'}, {b'k', b'nope'})
    for name in sorted(n for n in os.listdir(folder) if n != 'bom-utf16.ini'):
        data = open(os.path.join(folder, name), 'rb').read()
        sections, keys = names_of(data)
        rows += reads_of(name, data, sections | {b'S', b'Nope'}, keys | {b'k', b'nope'})
    # Names the program never passes, and a file in UTF-16.
    rows += [('spacing.ini', b'', b'k'), ('spacing.ini', b'S', b''), ('bom-utf16.ini', b'S', b'k')]
    return record_reads(wine, tmp, rows, folder)


CANONICAL = b'[S]\r\nk=1\r\nj=2\r\n[T]\r\nk=3\r\n'
LOOSE = b'; settings\r\n\r\n  [S]  \r\n  k  =  1  \r\n\r\n;note\r\nj=2\r\n\r\n\r\n[T]\r\n\tk\t=\t3\t\r\n\r\n'
WRITES = [
    ('replace.ini', CANONICAL, [(b'S', b'k', b'new')]),
    ('addkey.ini', CANONICAL, [(b'S', b'n', b'v')]),
    ('addsection.ini', CANONICAL, [(b'U', b'k', b'v')]),
    ('create.ini', None, [(b'S', b'k', b'v'), (b'S', b'j', b'w'), (b'T', b'k', b'x')]),
    ('same.ini', CANONICAL, [(b'S', b'k', b'1')]),
    ('sameloose.ini', LOOSE, [(b's', b'K', b'1'), (b'T', b'k', b'3')]),
    ('loose.ini', LOOSE, [(b'S', b'k', b'one'), (b'S', b'n', b'new'), (b'T', b't', b'x'), (b'U', b'u', b'y')]),
    ('noend.ini', b'[S]\r\nk=1', [(b'S', b'j', b'2')]),
    ('headeronly.ini', b'[S]', [(b'S', b'k', b'v')]),
    ('cr.ini', b'[S]\rk=1\r[T]\rk=3\r', [(b'S', b'k', b'2'), (b'S', b'n', b'v'), (b'U', b'u', b'w')]),
    ('lf.ini', b'[S]\nk=1\n\n[T]\nk=3\n', [(b'S', b'n', b'v'), (b'T', b'k', b'4')]),
    ('duplicates.ini', b'[A]\r\nk=1\r\n[a]\r\nk=2\r\nonlysecond=5\r\n', [(b'A', b'k', b'x'), (b'a', b'onlysecond', b'y')]),
    ('case.ini', CANONICAL, [(b's', b'K', b'up'), (b's', b'NewKey', b'v'), (b'u', b'k', b'v')]),
    ('values.ini', CANONICAL, [(b'S', b'lead', b'  v'), (b'S', b'trail', b'v  '), (b'S', b'quoted', b'"q"'),
                               (b'S', b'nb', b'\xa0v'), (b'S', b'high', b'\xe9\xc9\x8a\x9a'), (b'S', b'empty', b''),
                               (b'S', b'long', b'0123456789' * 30), (b'S', b'eq', b'a=b')]),
    ('names.ini', CANONICAL, [(b' S ', b'k', b'blank section'), (b' V ', b' w ', b'new'), (b'S', b' j\t', b'4')]),
    ('noequals.ini', b'[S]\r\nflag\r\nk=1\r\n', [(b'S', b'flag', b'on')]),
    ('before.ini', b'k=0\r\n[S]\r\nk=1\r\n', [(b'S', b'k', b'2'), (b'T', b'k', b'3')]),
    ('trailingblank.ini', b'[S]\r\nk=1\r\n\r\n\r\n[T]\r\nk=2\r\n\r\n', [(b'S', b'n', b'v'), (b'T', b'n', b'w')]),
    ('comment.ini', b'[S]\r\nk=1\r\n;note\r\n[T]\r\n', [(b'S', b'n', b'v'), (b'T', b'n', b'w')]),
    ('nofolder/x.ini', None, [(b'S', b'k', b'v')]),
    # Files with a UTF-8 byte-order mark; the values are ANSI bytes.
    ('bom-replace.ini', BOM_UTF8 + CANONICAL, [(b'S', b'k', b'new')]),
    ('bom-addkey.ini', BOM_UTF8 + CANONICAL, [(b'S', b'n', b'v')]),
    ('bom-addsection.ini', BOM_UTF8 + CANONICAL, [(b'U', b'k', b'v')]),
    ('bom-same.ini', BOM_UTF8 + CANONICAL, [(b'S', b'k', b'1')]),
    ('bom-high.ini', BOM_UTF8 + b'[S]\r\nk=caf\xc3\xa9\r\n[\xc3\x89t\xc3\xa9]\r\ncl\xc3\xa9=1\r\n',
     [(b'S', b'k', b'th\xe9'), (b'\xc9t\xe9', b'cl\xe9', b'\x80\xe9\xff\x81'), (b'\xc9t\xe9', b'\xe9l\xe8ve', b'\x92'),
      (b'\xe9t\xe9', b'k', b'v')]),
    ('bom-only.ini', BOM_UTF8, [(b'S', b'k', b'v')]),
    ('bom-before.ini', BOM_UTF8 + b'k=0\r\n[S]\r\nk=1\r\n', [(b'S', b'k', b'2'), (b'T', b'k', b'3')]),
    ('bom-cp1252.ini', BOM_UTF8 + b'[S]\r\nk=caf\xe9\r\n', [(b'S', b'j', b'2')]),
    ('bom-noend.ini', BOM_UTF8 + b'[S]\r\nk=1', [(b'S', b'j', b'2')]),
]


def profile_writes(wine, tmp):
    folder = os.path.join(tmp, 'writes')
    os.makedirs(folder)
    requests, cases = [], []
    for file, before, puts in WRITES:
        if before is not None:
            open(os.path.join(folder, file), 'wb').write(before)
        for s, k, v in puts:
            requests.append('P %s %s %s %s' % (wine.path(os.path.join(folder, file)), enc(s), enc(k), enc(v)))
            cases.append([file, MISSING if before is None else enc(before), enc(s), enc(k), enc(v)])
    for case, answer in zip(cases, wine.run('ProfileOracle', requests)):
        case.append(answer)
    files, reads = [], []
    for file, _, puts in WRITES:
        path = os.path.join(folder, file)
        after = open(path, 'rb').read() if os.path.exists(path) else None
        files.append('%s\t%s' % (file, MISSING if after is None else enc(after)))
        sections, keys = names_of(after or b'')
        sections |= {s for s, _, _ in puts}
        keys |= {k for _, k, _ in puts}
        reads += [(file, s, k) for s in sorted(sections) for k in sorted(keys) if s and k]
    return ['\t'.join(c) for c in cases], files, record_reads(wine, tmp, reads, folder)


def shortest(value, fmt):
    for digits in range(1, 18):
        text = '%.*g' % (digits, value)
        try:
            if struct.pack(fmt, float(text)) == struct.pack(fmt, value):
                return text
        except OverflowError:  # rounded past the largest single
            pass
    raise ValueError(value)


def plain(text, value):
    """A number in std::to_chars's shortest form: the fixed or the scientific
    notation of the shortest digits, whichever is shorter (fixed on a tie)."""
    sign, digits, exp = decimal.Decimal(text).normalize().as_tuple()
    digits, sign = ''.join(map(str, digits)), '-' if sign else ''
    if digits == '0':
        return sign + '0'
    e = exp + len(digits) - 1
    scientific = digits[0] + ('.' + digits[1:] if digits[1:] else '') + 'e%s%02d' % ('+' if e >= 0 else '-', abs(e))
    if exp >= 0:
        fixed = str(abs(int(value)))  # all the digits of a whole number
    elif -exp < len(digits):
        fixed = digits[:exp] + '.' + digits[exp:]
    else:
        fixed = '0.' + '0' * (-exp - len(digits)) + digits
    return sign + (fixed if len(fixed) <= len(scientific) else scientific)


def conversion(hr, bits, fmt):
    if hr == '80020005':
        return 'mismatch'
    if hr == '8002000A':
        return 'overflow'
    if hr != '00000000':
        return 'error-' + hr
    value = struct.unpack(fmt, bytes.fromhex(bits.rjust(struct.calcsize(fmt) * 2, '0')))[0]
    return plain(shortest(value, '<' + fmt[1]), value)


def number_texts():
    texts = []
    for line in open(os.path.join(HERE, 'number-texts.txt'), 'rb').read().split(b'\n'):
        if line and not line.startswith(b'#'):
            texts.append(line.decode())
    # Every text of up to five characters over the characters of a number,
    # and of up to four pieces over the pieces of oleaut32's other forms.
    for alphabet, length in ((list(' +-07,.e'), 5), (['5', '-', '+', '(', ')', ' ', '.', ',', '$', '%E2%82%AC',
                                                      '&H', '&O', 'e'], 4)):
        layer = ['']
        for _ in range(length):
            layer = [t + c for t in layer for c in alphabet]
            texts += [t.replace(' ', '%20') for t in layer]
    return list(dict.fromkeys(t if t else '%-' for t in texts))


def numbers():
    values = [0.7, 1.5, 860, 1e20, 1e-5, 123456789012345678.0, 0.1 + 0.2, -2.5, 1e15, 1e14, 0.0001, 0.0, -0.0,
              1.234e-5, 123456789012345.6, 999999999999999.9, 99999999999999.99, 1e16, 1e-300, 5e-324,
              sys.float_info.max, -sys.float_info.max, 0.5, 100, 1e21, 12345678901234567890.0, 3.0000000000000004,
              2.675, 1.0 / 3, -1e-7, 1.5e-5, 2.5e-10, 1.5e20, -1.5e20, 0.001, 0.00999, 1e100, 1e-100, 123.456, -0.5,
              65535, 4294967296.0, 3.4028234663852886e+38, 1.1754943508222875e-38]
    # Values as a user types them, and values of every size.
    for n in range(-2000, 2001, 7):
        values += [n / 100.0, n / 1000.0, n / 8.0]
    seed, mask = 88172645463325252, (1 << 64) - 1
    for _ in range(3000):
        seed ^= (seed << 13) & mask
        seed ^= seed >> 7
        seed ^= (seed << 17) & mask
        mantissa = 1.0 + (seed >> 11) / 9007199254740992.0 * 9.0
        values.append((-1 if seed & 1 else 1) * mantissa * 10.0 ** ((seed >> 3) % 61 - 30))
    return list(dict.fromkeys(struct.pack('>d', float(v)).hex().upper() for v in values))


def number_records(wine):
    texts, bits = number_texts(), numbers()
    text_rows = [[t] for t in texts]
    number_rows = [[repr(struct.unpack('>d', bytes.fromhex(b))[0])] for b in bits]
    for locale in ('en_US.UTF-8', 'de_DE.UTF-8'):
        for row, answer in zip(text_rows, wine.run('NumberOracle', ['T ' + t for t in texts], locale)):
            h8, r8, h4, r4 = answer.split(' ')
            row.append(conversion(h8, r8, '>d') + ' ' + conversion(h4, r4, '>f'))
        for row, answer in zip(number_rows, wine.run('NumberOracle', ['N ' + b for b in bits], locale)):
            hr, text = answer.split(' ')
            row.append(text if hr == '00000000' else 'error-' + hr)
    return ['\t'.join(r) for r in text_rows], ['\t'.join(r) for r in number_rows]


def write(name, header, rows):
    with open(os.path.join(DATA, name), 'w', newline='\n') as f:
        f.write('# ' + header + '\n' + '\n'.join(rows) + '\n')
    print('%s: %d rows' % (name, len(rows)))


def main():
    with tempfile.TemporaryDirectory() as tmp:
        wine = Wine(tmp)
        try:
            write('reads.tsv', 'file\tsection\tkey\tWine: count value', profile_reads(wine, tmp))
            cases, files, reads = profile_writes(wine, tmp)
            write('write-cases.tsv', 'file\tbefore\tsection\tkey\tvalue\tWine: result', cases)
            write('write-files.tsv', 'file\tWine: after', files)
            write('write-reads.tsv', 'file\tsection\tkey\tWine: count value', reads)
            texts, texts_of_numbers = number_records(wine)
            write('number-texts.tsv', 'text\ten_US: double single\tde_DE: double single', texts)
            write('number-to-text.tsv', 'number\ten_US: text\tde_DE: text', texts_of_numbers)
        finally:
            wine.stop()


if __name__ == '__main__':
    main()
