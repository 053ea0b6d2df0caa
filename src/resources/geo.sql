-- Units of measure by their EPSG codes. Those of dimension 1 are lengths; the program offers these and
-- knows the factor of each.
CREATE TABLE tblUnits (
  numId INTEGER PRIMARY KEY,
  strUnit TEXT,
  strUnitShort TEXT,
  numDimension INTEGER
);

INSERT INTO tblUnits (numId, strUnit, strUnitShort, numDimension) VALUES
  (9001, 'metre', 'm', 1),
  (9002, 'foot', 'ft', 1),
  (9003, 'US survey foot', 'ftUS', 1),
  (9005, 'Clarke''s foot', 'ftCla', 1),
  (9031, 'German legal metre', 'GLM', 1),
  (9033, 'US survey chain', 'chUS', 1),
  (9034, 'US survey link', 'lkUS', 1),
  (9035, 'US survey mile', 'miUS', 1),
  (9036, 'kilometre', 'km', 1),
  (9037, 'Clarke''s yard', 'ydCla', 1),
  (9038, 'Clarke''s chain', 'chCla', 1),
  (9039, 'Clarke''s link', 'lkCla', 1),
  (9040, 'British yard (Sears 1922)', 'ydSe', 1),
  (9041, 'British foot (Sears 1922)', 'ftSe', 1),
  (9042, 'British chain (Sears 1922)', 'chSe', 1),
  (9043, 'British link (Sears 1922)', 'lkSe', 1),
  (9062, 'British chain (Benoit 1895 B)', 'chBnB', 1),
  (9080, 'Indian foot', 'ftInd', 1),
  (9084, 'Indian yard', 'ydInd', 1),
  (9093, 'Statute mile', 'mi', 1),
  (9094, 'Gold Coast foot', 'ftGC', 1),
  (9095, 'British foot (1936)', 'ftBr(36)', 1),
  (9097, 'chain', 'ch', 1),
  (9098, 'link', 'lk', 1),
  (9101, 'radian', 'rad', 2),
  (9102, 'degree', 'deg', 2),
  (9201, 'unity', 'unity', 3);
