"""Writes a zip package that is smaller, or elsewhere, than it says: make_package.py KIND FILE."""
import struct
import sys
import zlib

CHUNK = 1 << 20
SCENE = (b'<Stage version="1" width="64" height="48">'
         b'<Picture x="0" y="0" width="9" height="9" source="p.png"/></Stage>')


def deflated(data):
    packer = zlib.compressobj(9, zlib.DEFLATED, -15)
    return packer.compress(data) + packer.flush()


def zeros(total):
    """So many zeros, from one piece that is packed once."""
    packer = zlib.compressobj(9, zlib.DEFLATED, -15)
    piece = packer.compress(bytes(CHUNK)) + packer.flush(zlib.Z_FULL_FLUSH)
    return piece * (total // CHUNK) + b'\x03\x00'


def entry(name, packed, size, crc):
    head = struct.pack('<HHHHHIIIHH', 20, 0, 8, 0, 33, crc, len(packed), size, len(name), 0)
    return (b'PK\x03\x04' + head + name + packed,
            lambda at: b'PK\x01\x02' + struct.pack('<H', 20) + head +
            struct.pack('<HHHII', 0, 0, 0, 0o100644 << 16, at) + name)


def package(entries):
    body, listing = b'', b''
    for local, central in entries:
        listing += central(len(body))
        body += local
    end = struct.pack('<HHHHIIH', 0, 0, len(entries), len(entries), len(listing), len(body), 0)
    return body + listing + b'PK\x05\x06' + end


def whole(name, data):
    return entry(name, deflated(data), len(data), zlib.crc32(data))


TEN_GIB = zeros(10 << 30)
KINDS = {
    'picture of 10 GiB that says so': lambda: [
        whole(b'stage.xml', SCENE), entry(b'p.png', TEN_GIB, 0xffffffff, 0)],
    'picture of 10 GiB that says 1,000 bytes': lambda: [
        whole(b'stage.xml', SCENE), entry(b'p.png', TEN_GIB, 1000, 0)],
    'scene of 10 GiB that says so': lambda: [entry(b'stage.xml', TEN_GIB, 0xffffffff, 0)],
    'scene of 10 GiB that says 1,000 bytes': lambda: [entry(b'stage.xml', TEN_GIB, 1000, 0)],
    'entries above the folder': lambda: [
        whole(b'stage.xml', SCENE.replace(b'p.png', b'../../evil.xml')),
        whole(b'../../evil.xml', SCENE), whole(b'/tmp/zavo-evil.xml', SCENE),
        whole(b'..\\evil.xml', SCENE), whole(b'a/../../evil.xml', SCENE)],
    'entry of no name': lambda: [whole(b'stage.xml', SCENE), whole(b'', SCENE)],
    'scene twice': lambda: [whole(b'stage.xml', SCENE), whole(b'stage.xml', SCENE)],
}

with open(sys.argv[2], 'wb') as file:
    file.write(package(KINDS[sys.argv[1]]()))
