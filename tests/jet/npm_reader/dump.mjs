// SPDX-License-Identifier: MIT
// usage: node dump.mjs FILE
// All user tables as JSON: an array of { name, columns: [{ name, type }], rows: [[cell]] }. Dates are milliseconds,
// bytes hexadecimal digits, numbers that JSON has no word for their name.
import { readFileSync } from "node:fs";
import MDBReader from "mdb-reader";

function cell(value) {
  if (value === undefined || value === null) return null;
  if (value instanceof Date) return value.getTime();
  if (value instanceof Uint8Array) return Buffer.from(value).toString("hex");
  if (typeof value === "bigint") return value.toString();
  if (typeof value === "number" && !Number.isFinite(value)) return String(value);
  return value;
}

const file = new MDBReader(readFileSync(process.argv[2]));
const tables = file.getTableNames({ normalTables: true, systemTables: false, linkedTables: false }).map((name) => {
  const table = file.getTable(name);
  const columns = table.getColumns().map(({ name, type }) => ({ name, type }));
  const rows = table.getData().map((row) => columns.map((column) => cell(row[column.name])));
  return { name, columns, rows };
});
process.stdout.write(JSON.stringify(tables));
