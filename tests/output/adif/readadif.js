// SPDX-License-Identifier: MIT
// Reads an ADIF file with the package tcadif, which is strict about values, and prints a line
// per contact; ends with an error when it refuses anything. Exit code 77 when the package is
// not installed.
'use strict';

let reader;
try {
    reader = require('tcadif');
} catch {
    process.exit(77);
}
const text = require('fs').readFileSync(process.argv[2], 'latin1');
for (const qso of reader.ADIF.parse(text).toObject().qsos) {
    const fields = ['CALL', 'BAND', 'FREQ', 'MODE', 'QSO_DATE', 'TIME_ON', 'SKCC'];
    console.log(fields.map(name => qso[name] ?? '').join('|'));
}
