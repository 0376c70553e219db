// Checks SARIF files against the official SARIF 2.1.0 JSON schema (the final 2.1.0 schema as
// Microsoft's SARIF SDK ships it), as a SARIF reader would before taking them in.
// Usage: node validate.js FILE...
"use strict";
const fs = require("fs");
const path = require("path");
const Ajv = require("ajv");

const schema = require(path.join(__dirname, "node_modules/@microsoft/jest-sarif/lib/schemas",
                                 "sarif-2.1.0-rtm.5.json"));
const ajv = new Ajv({schemaId: "auto", allErrors: true, format: "full"});
ajv.addMetaSchema(require("ajv/lib/refs/json-schema-draft-04.json"));
const validate = ajv.compile(schema);

let failed = false;
for (const file of process.argv.slice(2)) {
  const log = JSON.parse(fs.readFileSync(file, "utf8"));
  if (!validate(log)) {
    failed = true;
    console.error(`${file}: not valid SARIF 2.1.0:`);
    for (const e of validate.errors) console.error(`  ${e.dataPath} ${e.message}`);
  } else if (log.version !== "2.1.0" || log.runs.length !== 1) {
    failed = true;
    console.error(`${file}: not one run of SARIF 2.1.0`);
  } else {
    console.log(`${file}: valid SARIF 2.1.0, ${log.runs[0].results.length} results`);
  }
}
process.exit(failed ? 1 : 0);
