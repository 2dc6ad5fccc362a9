LOAD DATA
INFILE 'people.dat'
INTO TABLE people
FIELDS TERMINATED BY ','
(id, name, town)
